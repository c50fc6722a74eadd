#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "book/book_lines.h"
#include "book/book_list.h"
#include "book/fate.h"
#include "book/merge.h"
#include "text/flat_table.h"

namespace quenda {

/// What a merge would make of one row of the final list.
struct RowFate {
  static constexpr std::uint32_t kNowhere = 0xFFFFFFFFU;
  std::uint32_t in_book = kNowhere;  // where the entry of the book begins that the fate is about
  Fate fate = Fate::kUnread;         // `kUnread` while it is not known
};
static_assert(sizeof(RowFate) == 8, "there may be a million of them");

/// The fates of all rows by the real merge, of which nothing is written. Nobody is asked: such a
/// row is `kAsked`, and the merge goes on as if the book's entry stayed. Faults are those of
/// reading a line of the book, and whatever `on_step` raises, which is called after each entry.
std::vector<RowFate> foresee_fates(std::string_view book, LineEnd end, const FlatTable& rows,
                                   MergeMode mode, const OnStep& on_step);

}  // namespace quenda

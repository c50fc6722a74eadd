#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "app/account/list_rows.h"
#include "app/account/source_numbers.h"
#include "book/import_report.h"
#include "book/merge_account.h"
#include "book/removed_rows.h"
#include "text/flat_table.h"
#include "text/repeated_lines.h"

namespace quenda {

/// What an account of an import is made of.
struct AccountInput {
  /// Walks over the source as it was composed; returns the count of its records.
  std::function<std::size_t(ListRows&, const OnSourceNumber&)> walk;
  /// The final list as it stands: what the user removed is missing, what he edited is as edited.
  const FlatTable& list;
  const RemovedRows& removed;
  /// What never came into it because an earlier line is the same.
  const std::vector<RepeatedLine>& repeated;
  /// Whether the list was made of the whole source. If not, its numbers were not read to the end.
  bool composed = true;
  /// What the merge makes, or made, of a row of the list.
  std::function<MergeAccount::Verdict(std::size_t row)> verdict;
  /// Line of the source that rows of this origin were made of.
  std::function<std::uint64_t(std::uint32_t origin)> line_of;
  /// Name of an entry of the book as it was.
  std::function<std::string_view(std::size_t entry)> name_in_book;
};

/// Every number of the source with its fate, in the order of the source. Returns the count of
/// records. The texts of a row are good only while one is told of it.
std::size_t account_for(const AccountInput& input,
                        const std::function<void(const ReportRow&)>& on_row);

/// What the report tells of a row of the final list, but for its place in the source.
ReportRow told_of_row(const AccountInput& input, std::size_t row);

}  // namespace quenda

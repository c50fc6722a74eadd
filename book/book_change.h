#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "book/book_list.h"
#include "text/steps.h"
#include "text/tail_text.h"

namespace quenda {

/// What has to be written so that the book's file holds the entries of a list: everything from the
/// first byte on that changes. It is composed while it is written, a block at a time, so that a
/// million new lines need not be in memory at once.
class BookChange : public TailText {
 public:
  /// Finds what changes, by the entries that are written and whose bytes do not stand in the old
  /// text already. That text has to be the one that the list was read from; both have to outlive
  /// the change and to stay as they are.
  BookChange(std::string_view old_text, const BookList& list, const OnStep& on_step);

  /// Bytes at the front of the file that stay as they are.
  [[nodiscard]] std::uint64_t keep() const { return keep_; }
  [[nodiscard]] std::uint64_t size() const override { return size_ - keep_; }
  void tell(std::uint64_t from, std::uint64_t to, const Take& take) const override;

 private:
  std::string_view old_text_;
  const BookList& list_;
  std::uint64_t keep_ = 0;
  std::uint64_t size_ = 0;         // of the whole book
  std::size_t first_ = 0;          // the entry that the change begins with
  std::uint64_t first_start_ = 0;  // where that one begins in the new book
};

}  // namespace quenda

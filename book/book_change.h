#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "book/book_list.h"

namespace quenda {

/// What has to be written so that the book's file holds the entries of a list: everything from the
/// first byte on that changes, in parts.
struct BookChange {
  std::uint64_t keep = 0;  // bytes at the front of the file that stay as they are
  std::vector<std::string_view>
      pieces;  // what follows them: parts of the old text and of `composed`
  std::vector<std::string> composed;

  BookChange() = default;
  BookChange(BookChange&&) = default;
  BookChange& operator=(BookChange&&) = default;
  // The pieces of a copy would point into the original.
  BookChange(const BookChange&) = delete;
  BookChange& operator=(const BookChange&) = delete;
  ~BookChange() = default;
};

/// Composes the lines of the entries that are written and whose bytes do not stand in the old text
/// already. That text has to be the one that the list was read from, and to outlive the result.
BookChange compose_book(std::string_view old_text, const BookList& list, const OnStep& on_step);

}  // namespace quenda

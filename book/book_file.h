#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "book/book_entry.h"

namespace quenda {

/// Walks over the lines of a book, each up to its CR LF. A lone CR or LF is part of a line.
class BookLines {
 public:
  explicit BookLines(std::string_view text) : rest_(text) {}
  /// The next line; false after the last. Text that ends with CR LF has no empty last line.
  bool next(std::string_view& line);

 private:
  std::string_view rest_;
};

/// What has to be written so that the book's file holds the entries: everything from the first byte
/// on that changes.
struct BookChange {
  std::uint64_t keep = 0;  // bytes at the front of the file that stay as they are
  std::string tail;        // what follows them
};

/// Composes the whole book in memory and compares it with the file's text on the way. Entries
/// without a number are left out.
BookChange compose_book(std::string_view old_text, const std::vector<BookEntry>& entries,
                        const std::function<void(std::size_t done, std::size_t total)>& on_step);

}  // namespace quenda

#pragma once

#include <cstddef>
#include <string_view>

#include "text/line_breaks.h"

namespace quenda {

/// What ends the lines of a book.
enum class LineEnd { kCrLf, kLf };

/// A book ends its lines with CR LF. One without any CR LF, whose line feeds stand outside of the
/// card blocks, has been through a program that turned the line ends: there every such line feed
/// ends a line.
LineEnd line_end_of(std::string_view book, const LineBreaks& breaks);
inline LineEnd line_end_of(std::string_view book) {
  return line_end_of(book, count_line_breaks(book));
}

/// Walks over the lines of a book. A line feed inside a card block ends no line, and a lone CR or
/// LF is part of a line where CR LF ends it.
class BookLines {
 public:
  BookLines(std::string_view text, LineEnd end) : rest_(text), end_(end) {}
  /// The next line; false after the last. Text that ends with a line end has no empty last line.
  bool next(std::string_view& line);

 private:
  std::string_view rest_;
  LineEnd end_;
};

/// Where a line of the book holds two entries, with only a lone CR or LF outside of the card blocks
/// between them: the number of the line, counted from 1 as an editor counts that ends a line at
/// every CR LF, CR and LF. 0 when there is no such line. Written anew, such a line would keep its
/// first entry only.
std::size_t line_of_joined_entries(std::string_view book, LineEnd end, const LineBreaks& breaks);

}  // namespace quenda

#pragma once

#include <cstddef>
#include <string_view>

#include "book/book_entry.h"
#include "book/book_lines.h"
#include "text/place_finder.h"

namespace quenda {

/// Goes over the lines of a book and finds what the merge has to know of each. Lines of the usual
/// form are found in one pass over the text: eight fields, then a card block that ends the line,
/// and no mark of a card elsewhere. This is how the tool writes them.
class BookScanner {
 public:
  BookScanner(std::string_view book, LineEnd end)
      : book_(book), end_(end), separators_(book, ';'), marks_(book, '[', ')', '\n') {}

  /// The next line, without its end; false after the last one.
  bool next(std::string_view& line);
  /// What there is to know of that line; the faults are those of `read_book_line`.
  [[nodiscard]] ExaminedLine examined() const;

 private:
  bool take_usual_line(std::string_view& line);
  /// Whether a line feed ends the line at hand.
  [[nodiscard]] bool ends_line(std::size_t mark) const {
    return book_[mark] == '\n' && mark > start_ && book_[mark - 1] == '\r';
  }
  [[nodiscard]] bool has_there(std::size_t place, std::string_view text) const {
    return book_.substr(place, text.size()) == text;
  }

  std::string_view book_;
  LineEnd end_;
  PlaceFinder<1> separators_;
  PlaceFinder<3> marks_;
  std::size_t start_ = 0;  // of the line that comes next
  bool usual_ = false;
  std::string_view line_;  // that is not usual
  BookFields fields_;      // of one that is
};

}  // namespace quenda

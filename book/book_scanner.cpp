#include "book/book_scanner.h"

#include <algorithm>

#include "text/text.h"

namespace quenda {

bool BookScanner::next(std::string_view& line) {
  if (start_ >= book_.size()) return false;
  usual_ = end_ == LineEnd::kCrLf && take_usual_line(line);
  if (!usual_) {
    BookLines(book_.substr(start_), end_).next(line_);
    start_ += line_.size() + (end_ == LineEnd::kCrLf ? kCrLf.size() : 1);
    marks_.go_to(std::min(start_, book_.size()));
    line = line_;
  }
  return true;
}

bool BookScanner::take_usual_line(std::string_view& line) {
  separators_.go_to(start_);
  std::size_t field_start = start_;
  for (std::string_view& field : fields_) {
    const std::size_t separator = separators_.next();
    if (separator == book_.size()) return false;
    field = book_.substr(field_start, separator - field_start);
    field_start = separator + 1;
  }
  // What lies between is text: neither a mark of a card nor the line's end may be in it.
  std::size_t mark = marks_.next();
  for (; mark < field_start; mark = marks_.next()) {
    if (ends_line(mark) || has_there(mark, kCardOpen) || has_there(mark, kCardClose)) return false;
  }
  if (mark != field_start || !has_there(mark, kCardOpen)) return false;
  do {
    mark = marks_.next();
    if (mark == book_.size() || ends_line(mark)) return false;
  } while (!has_there(mark, kCardClose));
  const std::size_t end = mark + kCardClose.size();
  if (!has_there(end, kCrLf)) return false;
  marks_.next();  // the line feed
  line = book_.substr(start_, end - start_);
  start_ = end + kCrLf.size();
  return true;
}

ExaminedLine BookScanner::examined() const {
  return usual_ ? examine_fields(fields_, fields_.back().empty()) : examine_book_line(line_);
}

}  // namespace quenda

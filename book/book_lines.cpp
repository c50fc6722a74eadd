#include "book/book_lines.h"

#include <algorithm>

#include "book/book_entry.h"
#include "text/text.h"

namespace quenda {
namespace {

/// The end of the card block that opens at a place; npos when it is not closed before the next one
/// opens.
std::size_t end_of_card(std::string_view text, std::size_t open) {
  const std::size_t inside = open + kCardOpen.size();
  const std::size_t close = text.substr(0, text.find(kCardOpen, inside)).find(kCardClose, inside);
  return close == text.npos ? close : close + kCardClose.size();
}

/// Where the next of the characters stands outside of the card blocks.
std::size_t find_outside_cards(std::string_view text, std::string_view characters) {
  for (std::size_t from = 0;;) {
    const std::size_t found = text.find_first_of(characters, from);
    const std::size_t open = text.substr(0, found).find(kCardOpen, from);
    if (open == text.npos) return found;
    const std::size_t end = end_of_card(text, open);
    from = end == text.npos ? open + kCardOpen.size() : end;
  }
}

/// Whether a piece of a line has all the fields of an entry.
bool has_all_fields(std::string_view piece) {
  constexpr std::size_t kSeparators = 7;
  for (std::size_t i = 0; i < kSeparators; ++i) {
    const std::size_t at = find_outside_cards(piece, ";");
    if (at == piece.npos) return false;
    piece.remove_prefix(at + 1);
  }
  return true;
}

std::size_t lines_before(std::string_view text) {
  const LineBreaks breaks = count_line_breaks(text);
  return breaks.cr + breaks.lf - breaks.pairs;
}

/// Where in the line a second entry begins; npos for a line that holds one entry or none.
std::size_t second_entry(std::string_view line) {
  std::size_t entries = 0;
  for (std::size_t start = 0;;) {
    const std::size_t size =
        std::min(find_outside_cards(line.substr(start), "\r\n"), line.size() - start);
    if (has_all_fields(line.substr(start, size)) && ++entries == 2) return start;
    start += size + 1;
    if (start > line.size()) return line.npos;
  }
}

}  // namespace

LineEnd line_end_of(std::string_view book, const LineBreaks& breaks) {
  const bool turned = breaks.pairs == 0 && find_outside_cards(book, "\n") != book.npos;
  return turned ? LineEnd::kLf : LineEnd::kCrLf;
}

bool BookLines::next(std::string_view& line) {
  if (rest_.empty()) return false;
  const std::string_view end = end_ == LineEnd::kCrLf ? kCrLf : kCrLf.substr(1);
  const auto at = end_ == LineEnd::kCrLf ? rest_.find(end) : find_outside_cards(rest_, end);
  line = rest_.substr(0, at);
  rest_ = at == rest_.npos ? std::string_view() : rest_.substr(at + end.size());
  return true;
}

std::size_t line_of_joined_entries(std::string_view book, LineEnd end, const LineBreaks& breaks) {
  if (end == LineEnd::kLf ? breaks.cr == breaks.pairs : breaks.only_pairs()) return 0;
  BookLines lines(book, end);
  for (std::string_view line; lines.next(line);) {
    const std::size_t second = second_entry(line);
    if (second == line.npos) continue;
    const auto start = static_cast<std::size_t>(line.data() - book.data());
    return lines_before(book.substr(0, start + second));
  }
  return 0;
}

}  // namespace quenda

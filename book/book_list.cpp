#include "book/book_list.h"

#include <algorithm>

#include "book/book_scanner.h"
#include "book/entry_list.h"
#include "text/row_index.h"
#include "text/short_hash.h"
#include "text/text.h"

namespace quenda {

void BookList::read_book(std::string_view& line, const OnStep& on_step, std::size_t lines) {
  if (lines == 0) lines = count_of(book_, '\n') + 1;
  places_.reserve(lines);
  hashes_.reserve(lines + rows_.rows());
  marks_.reserve(lines + rows_.rows());
  const std::size_t line_end = end_ == LineEnd::kCrLf ? kCrLf.size() : 1;
  BookScanner reader(book_, end_);
  Steps steps(on_step, book_.size());
  std::size_t characters = 0;
  std::size_t next_start = 0;
  while (reader.next(line)) {
    if (line.empty()) continue;
    characters += line.size();
    const auto start = static_cast<std::size_t>(line.data() - book_.data());
    // An empty line in front of it goes when the book is written.
    if (start != next_start && size() > 0) compose_last();
    next_start = start + line.size() + line_end;
    const ExaminedLine read = reader.examined();
    add(read.number, read.plain && end_ == LineEnd::kCrLf ? Mark::kPlain : Mark::kComposed);
    places_.push_back(static_cast<std::uint32_t>(start));
    steps.row_done(characters);
  }
  if (next_start != book_.size() && size() > 0) compose_last();
  in_book_ = size();
  line = {};
}

void BookList::add_rows(const OnStep& on_step) {
  const std::size_t count = rows_.rows();
  Steps steps(on_step, count);
  for (std::size_t row = 0; row < count; ++row) {
    add(rows_.cell(row, kEntryNumber), Mark::kComposed);
    steps.row_done(row + 1);
  }
}

void BookList::add(std::string_view number, Mark mark) {
  hashes_.push_back(short_hash_of(number));
  marks_.push_back(number.empty() ? Mark::kDropped : mark);
}

std::string_view BookList::line(std::size_t entry) const {
  BookLines reader(book_.substr(places_[entry]), end_);
  std::string_view line;
  reader.next(line);
  return line;
}

std::string_view BookList::number(std::size_t entry) const {
  if (entry >= in_book_) return rows_.cell(row(entry), kEntryNumber);
  return book_line_number(book_.substr(places_[entry]));
}

BookContact BookList::contact(std::size_t entry) const {
  if (entry < in_book_) return book_line_contact(book_.substr(places_[entry]));
  return {rows_.cell(row(entry), kEntryName), rows_.cell(row(entry), kEntryAddress)};
}

void BookList::announce(std::size_t entry) const {
  constexpr std::size_t kCacheLine = 64;
  if (entry >= in_book_) return;  // the rows are read in their order
  const char* const start = book_.data() + places_[entry];
  announce_reading(start);
  announce_reading(start + kCacheLine);
}

std::string_view BookList::name(std::size_t entry) const {
  if (entry >= in_book_) return rows_.cell(row(entry), kEntryName);
  const std::string_view line = book_.substr(places_[entry]);
  return line.substr(0, line.find(';'));
}

std::string_view BookList::name_and_number(std::size_t entry) const {
  const std::string_view line = rows_.line(row(entry));
  const std::size_t behind = rows_.cell(row(entry), kEntryAddress).size() + 1;
  return line.substr(0, line.size() - behind);
}

BookEntry BookList::entry(std::size_t entry) const {
  BookEntry result = own_entry(entry);
  if (marks_[entry] != Mark::kInherits) return result;
  const BookEntry from = own_entry(source_of_tag(entry));
  result.Tag = from.Tag;
  result.Count = from.Count;
  return result;
}

BookEntry BookList::own_entry(std::size_t entry) const {
  if (entry < in_book_) return read_book_line(line(entry));
  BookEntry result;
  result.Name = rows_.cell(row(entry), kEntryName);
  result.Number = rows_.cell(row(entry), kEntryNumber);
  result.Address = rows_.cell(row(entry), kEntryAddress);
  return result;
}

void BookList::replace(std::size_t entry, std::size_t later) {
  const std::size_t from = source_of_tag(entry);
  inheritances_.push_back({static_cast<std::uint32_t>(later), static_cast<std::uint32_t>(from)});
  marks_[entry] = Mark::kDropped;
  marks_[later] = Mark::kInherits;
}

std::size_t BookList::source_of_tag(std::size_t entry) const {
  if (marks_[entry] != Mark::kInherits) return entry;
  return std::lower_bound(inheritances_.begin(), inheritances_.end(), entry,
                          [](const Inheritance& i, std::size_t heir) { return i.heir < heir; })
      ->from;
}

}  // namespace quenda

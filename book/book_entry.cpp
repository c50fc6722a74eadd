#include "book/book_entry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>

#include "text/conversions.h"
#include "text/fault.h"
#include "text/place_finder.h"
#include "text/text.h"

namespace quenda {
namespace {

// What stands in a new line between its texts and behind them.
constexpr std::string_view kNewBetween = ";0;0;0;0;";
constexpr std::string_view kNewEnd = ";;[vcd()vcd]\r\n";

BookFields split_fields(std::string_view line) {
  BookFields fields;
  PlaceFinder separators(line, ';');
  std::size_t start = 0;
  for (std::string_view& field : fields) {
    if (start > line.size()) raise_fault(kFaultIndexRange);
    const std::size_t end = separators.next();
    field = line.substr(start, end - start);
    start = end + 1;
  }
  return fields;
}

/// A card block ends at the first closing mark after its opening; one that only has a closing mark
/// before it is broken.
std::string_view card_data(std::string_view line) {
  const auto open = line.find(kCardOpen);
  if (open == line.npos) return {};
  const auto start = open + kCardOpen.size();
  const auto close = line.find(kCardClose, start);
  if (close != line.npos) return line.substr(start, close - start);
  if (line.find(kCardClose) != line.npos) raise_fault(kFaultInvalidCall);
  return {};
}

bool plain_flag(std::string_view text) { return text == "0" || text == "-1"; }

/// Whether a count stands there as it would be written; longer ones are left to the conversion.
bool plain_count(std::string_view text) {
  constexpr std::size_t kMostDigits = 4;
  if (text == "0") return true;
  if (text.starts_with('-')) text.remove_prefix(1);
  return !text.empty() && text.size() <= kMostDigits && text.front() != '0' &&
         std::all_of(text.begin(), text.end(), is_digit);
}

/// Whether nothing stands behind the address but an empty field and the card, at the line's end.
bool plain_end(std::string_view line, std::string_view extra) {
  const std::string_view card = card_data(line);
  return extra.empty() && card.data() == extra.data() + 1 + kCardOpen.size() &&
         card.data() + card.size() + kCardClose.size() == line.data() + line.size();
}

std::string_view flag_text(bool flag) { return flag ? "-1" : "0"; }

/// Adds the pieces with one growth of the text.
void append_pieces(std::string& text, std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  if (text.capacity() - text.size() < size) text.reserve(2 * (text.size() + size));
  text.resize(text.size() + size);
  char* to = text.data() + text.size() - size;
  for (const std::string_view piece : pieces) to = std::copy(piece.begin(), piece.end(), to);
}

}  // namespace

BookEntry read_book_line(std::string_view line) {
  const auto fields = split_fields(line);
  BookEntry entry;
  entry.Name = fields[0];
  entry.Number = fields[1];
  entry.Tag = fields[2];
  entry.Flag1 = to_boolean(fields[3]);
  entry.Count = to_int16(fields[4]);
  entry.Flag2 = to_boolean(fields[5]);
  entry.Address = fields[6];
  entry.Extra = fields[7];
  entry.CardData = card_data(line);
  return entry;
}

ExaminedLine examine_fields(const BookFields& fields, bool ends_plainly) {
  const bool plain = plain_flag(fields[3]) && plain_count(fields[4]) && plain_flag(fields[5]);
  if (!plain) {
    to_boolean(fields[3]);
    to_int16(fields[4]);
    to_boolean(fields[5]);
  }
  return {fields[1], plain && ends_plainly};
}

ExaminedLine examine_book_line(std::string_view line) {
  const BookFields fields = split_fields(line);
  ExaminedLine examined = examine_fields(fields, true);
  examined.plain = plain_end(line, fields.back()) && examined.plain;
  return examined;
}

std::string_view book_line_number(std::string_view text) {
  PlaceFinder separators(text, ';');
  const std::size_t start = separators.next() + 1;
  return text.substr(start, separators.next() - start);
}

BookContact book_line_contact(std::string_view text) {
  constexpr std::size_t kFieldsBetween = 5;
  PlaceFinder separators(text, ';');
  const std::string_view name = text.substr(0, separators.next());
  std::size_t before = name.size();
  for (std::size_t i = 0; i < kFieldsBetween; ++i) before = separators.next();
  return {name, text.substr(before + 1, separators.next() - before - 1)};
}

void append_book_line(std::string& text, const BookEntry& entry) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), entry.Count).ptr;
  const std::string_view count(digits.data(), static_cast<std::size_t>(end - digits.data()));
  append_pieces(text, {entry.Name, ";", entry.Number, ";", entry.Tag, ";", flag_text(entry.Flag1),
                       ";", count, ";", flag_text(entry.Flag2), ";", entry.Address, ";;", kCardOpen,
                       entry.CardData, kCardClose, kCrLf});
}

void append_new_book_line(std::string& text, std::string_view name_and_number,
                          std::string_view address) {
  text.append(name_and_number).append(kNewBetween).append(address).append(kNewEnd);
}

std::size_t new_book_line_size(std::string_view name_and_number, std::string_view address) {
  return name_and_number.size() + kNewBetween.size() + address.size() + kNewEnd.size();
}

}  // namespace quenda

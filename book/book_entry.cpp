#include "book/book_entry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>

#include "text/conversions.h"
#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kCardOpen = "[vcd(";
constexpr std::string_view kCardClose = ")vcd]";
constexpr std::size_t kFields = 8;

std::array<std::string_view, kFields> split_fields(std::string_view line) {
  std::array<std::string_view, kFields> fields;
  for (std::size_t i = 0; i < kFields; ++i) {
    if (line.data() == nullptr) raise_fault(kFaultIndexRange);
    const auto at = line.find(';');
    fields[i] = line.substr(0, at);
    line = at == line.npos ? std::string_view() : line.substr(at + 1);
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

void append_book_line(std::string& text, const BookEntry& entry) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), entry.Count).ptr;
  const std::string_view count(digits.data(), static_cast<std::size_t>(end - digits.data()));
  append_pieces(text, {entry.Name, ";", entry.Number, ";", entry.Tag, ";", flag_text(entry.Flag1),
                       ";", count, ";", flag_text(entry.Flag2), ";", entry.Address, ";;", kCardOpen,
                       entry.CardData, kCardClose, kCrLf});
}

}  // namespace quenda

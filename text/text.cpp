#include "text/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

#include "text/character_counts.h"
#include "text/code_page_1252.h"

namespace quenda {
namespace {

constexpr std::array<char, 256> make_lower_table() {
  std::array<char, 256> table{};
  for (unsigned i = 0; i < table.size(); ++i) {
    const bool ascii = i >= 'A' && i <= 'Z';
    const bool latin = i >= 0xC0 && i <= 0xDE && i != 0xD7;
    table[i] = static_cast<char>(ascii || latin ? i + 0x20 : i);
  }
  for (const unsigned i : {0x8AU, 0x8CU, 0x8EU}) table[i] = static_cast<char>(i + 0x10);
  table[0x9F] = static_cast<char>(0xFF);
  return table;
}

constexpr auto kLower = make_lower_table();

/// How many characters of ASCII a text begins with.
std::size_t ascii_at_start(std::string_view text) {
  constexpr std::size_t kSize = ByteBlock::kSize;
  std::size_t at = 0;
  for (; text.size() - at >= kSize; at += kSize) {
    const std::uint32_t others = ByteBlock::load(text.data() + at).top_bits();
    if (others != 0) return at + static_cast<std::size_t>(std::countr_zero(others));
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80) ++at;
  return at;
}

void append_character(std::string& out, char32_t code_point) {
  if (code_point < 0x80) {
    out += static_cast<char>(code_point);
  } else if (code_point < 0x800) {
    out += static_cast<char>(0xC0U | (code_point >> 6U));
    out += static_cast<char>(0x80U | (code_point & 0x3FU));
  } else {
    out += static_cast<char>(0xE0U | (code_point >> 12U));
    out += static_cast<char>(0x80U | ((code_point >> 6U) & 0x3FU));
    out += static_cast<char>(0x80U | (code_point & 0x3FU));
  }
}

}  // namespace

std::string concat(std::initializer_list<std::string_view> parts) {
  std::size_t size = 0;
  for (const auto part : parts) size += part.size();
  std::string result;
  result.reserve(size);
  for (const auto part : parts) result += part;
  return result;
}

char to_lower(char character) { return kLower[static_cast<unsigned char>(character)]; }

std::string to_lower(std::string_view text) {
  std::string result(text);
  for (char& c : result) c = to_lower(c);
  return result;
}

bool equal_ignoring_case(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return to_lower(x) == to_lower(y);
         });
}

std::string replace_all(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  if (from.empty()) return result.assign(text);
  result.reserve(text.size());
  std::size_t start = 0;
  for (auto at = text.find(from); at != text.npos; at = text.find(from, start)) {
    result.append(text.substr(start, at - start)).append(to);
    start = at + from.size();
  }
  return result.append(text.substr(start));
}

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> parts;
  std::string_view part;
  while (next_part(text, separator, part)) parts.push_back(part);
  if (parts.empty()) parts.emplace_back();
  return parts;
}

bool next_part(std::string_view& rest, std::string_view separator, std::string_view& part) {
  if (rest.data() == nullptr) return false;
  const auto at = separator.empty() ? rest.npos : rest.find(separator);
  part = rest.substr(0, at);
  rest = at == rest.npos ? std::string_view() : rest.substr(at + separator.size());
  return true;
}

std::size_t count_of(std::string_view text, char character) {
  return count_each(text, character)[0];
}

std::string to_utf8(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 8);
  append_utf8(result, text);
  return result;
}

void append_utf8(std::string& out, std::string_view text) {
  while (!text.empty()) {
    const std::size_t ascii = ascii_at_start(text);
    out += text.substr(0, ascii);
    if (ascii == text.size()) return;
    append_character(out, unicode_of_1252(static_cast<unsigned char>(text[ascii])));
    text.remove_prefix(ascii + 1);
  }
}

std::optional<std::string> from_utf8(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const std::size_t size = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                                           : 0;
    if (size == 0 || i + size > utf8.size()) return std::nullopt;
    char32_t code_point = size == 1 ? lead : lead & (0x7FU >> size);
    for (std::size_t k = 1; k < size; ++k) {
      const auto next = static_cast<unsigned char>(utf8[i + k]);
      if ((next & 0xC0U) != 0x80U) return std::nullopt;
      code_point = (code_point << 6U) | (next & 0x3FU);
    }
    const int byte = byte_1252_of(code_point);
    if (byte < 0 || (size == 3 && code_point < 0x800)) return std::nullopt;
    result += static_cast<char>(byte);
    i += size;
  }
  return result;
}

}  // namespace quenda

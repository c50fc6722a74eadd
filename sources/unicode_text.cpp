#include "sources/unicode_text.h"

#include <bit>
#include <cstdint>

#include "text/byte_block.h"

namespace quenda {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool is_high_half(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool is_low_half(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::size_t utf8_size(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2) return 0;
  if (lead < 0xE0) return 2;
  if (lead < 0xF0) return 3;
  return lead < 0xF5 ? 4 : 0;
}

}  // namespace

DecodedCharacter decode_utf8(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t size = utf8_size(lead);
  if (size == 1) return {lead, 1};
  if (size == 0 || at + size > text.size()) return {};
  char32_t code_point = lead & (0x7FU >> size);
  for (std::size_t i = 1; i < size; ++i) {
    const auto next = static_cast<unsigned char>(text[at + i]);
    if ((next & 0xC0U) != 0x80U) return {};
    code_point = (code_point << 6U) | (next & 0x3FU);
  }
  const bool overlong = (size == 3 && code_point < 0x800) || (size == 4 && code_point < 0x10000);
  const bool half = is_high_half(code_point) || is_low_half(code_point);
  if (overlong || half || code_point > 0x10FFFF) return {};
  return {code_point, size};
}

void append_utf8(std::string& out, char32_t code_point) {
  const auto tail = [&](unsigned shift) {
    out += static_cast<char>(0x80U | ((code_point >> shift) & 0x3FU));
  };
  if (code_point < 0x80) {
    out += static_cast<char>(code_point);
  } else if (code_point < 0x800) {
    out += static_cast<char>(0xC0U | (code_point >> 6U));
    tail(0);
  } else if (code_point < 0x10000) {
    out += static_cast<char>(0xE0U | (code_point >> 12U));
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0U | (code_point >> 18U));
    tail(12);
    tail(6);
    tail(0);
  }
}

std::string utf16_to_utf8(std::string_view bytes, bool big_endian) {
  std::string out;
  out.reserve(bytes.size() / 2 + bytes.size() / 8);
  const auto unit_at = [&](std::size_t at) -> char32_t {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    return big_endian ? first * 0x100U + second : second * 0x100U + first;
  };
  std::size_t at = 0;
  for (; at + 1 < bytes.size(); at += 2) {
    const char32_t unit = unit_at(at);
    if (is_high_half(unit) && at + 3 < bytes.size() && is_low_half(unit_at(at + 2))) {
      append_utf8(out, 0x10000 + ((unit - 0xD800) << 10U) + (unit_at(at + 2) - 0xDC00));
      at += 2;
    } else {
      append_utf8(out, is_high_half(unit) || is_low_half(unit) ? kReplacement : unit);
    }
  }
  if (at < bytes.size()) append_utf8(out, kReplacement);
  return out;
}

std::size_t skip_ascii(std::string_view text, std::size_t at) {
  for (; text.size() - at >= ByteBlock::kSize; at += ByteBlock::kSize) {
    const std::uint32_t high = ByteBlock::load(text.data() + at).top_bits();
    if (high != 0) return at + static_cast<std::size_t>(std::countr_zero(high));
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80) ++at;
  return at;
}

}  // namespace quenda

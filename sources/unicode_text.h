#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Code points at the edge of a file that is not Windows-1252.
namespace quenda {

/// A code point and the bytes that it takes; no bytes where no character begins.
struct DecodedCharacter {
  char32_t code_point = 0;
  std::size_t size = 0;
};

/// The UTF-8 character that begins at a position. Overlong forms and halves of surrogate pairs are
/// none.
DecodedCharacter decode_utf8(std::string_view text, std::size_t at);

void append_utf8(std::string& out, char32_t code_point);

/// UTF-16 without its mark as UTF-8. Halves of pairs, and a half unit at the end, become U+FFFD.
std::string utf16_to_utf8(std::string_view bytes, bool big_endian);

/// Position of the first byte from 0x80 up, or the end.
std::size_t skip_ascii(std::string_view text, std::size_t at);

}  // namespace quenda

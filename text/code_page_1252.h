#pragma once

#include <array>

namespace quenda {

/// Unicode code points of the Windows-1252 bytes 0x80 to 0x9F. The five bytes that the code page
/// leaves undefined stand for the control characters of the same number, as Windows maps them.
inline constexpr std::array<char32_t, 32> kCodePage1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The Unicode code point of one Windows-1252 byte.
constexpr char32_t unicode_of_1252(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kCodePage1252High[byte - 0x80U] : char32_t{byte};
}

/// The Windows-1252 byte of a code point, or -1 where the code page has no such character.
constexpr int byte_1252_of(char32_t code_point) {
  if (code_point < 0x80 || (code_point >= 0xA0 && code_point <= 0xFF)) {
    return static_cast<int>(code_point);
  }
  for (unsigned i = 0; i < kCodePage1252High.size(); ++i) {
    if (kCodePage1252High[i] == code_point) return static_cast<int>(0x80 + i);
  }
  return -1;
}

}  // namespace quenda

#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "text/code_page_1252.h"

namespace quenda {
namespace literal_detail {

template <std::size_t N>
struct Utf8Text {
  // NOLINTNEXTLINE(google-explicit-constructor): a literal operator template needs the conversion
  consteval Utf8Text(const char8_t (&text)[N]) {
    for (std::size_t i = 0; i < N; ++i) units[i] = text[i];
  }
  char8_t units[N] = {};
};

template <std::size_t N>
struct Bytes1252 {
  std::array<char, N> bytes{};
  std::size_t length = 0;
};

template <Utf8Text Text>
consteval auto convert() {
  Bytes1252<sizeof(Text.units)> result;
  const std::size_t units = sizeof(Text.units) - 1;
  for (std::size_t i = 0; i < units;) {
    const char32_t lead = Text.units[i];
    const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t code_point = size == 1 ? lead : lead & (0x7FU >> size);
    for (std::size_t k = 1; k < size; ++k) {
      code_point = (code_point << 6U) | (Text.units[i + k] & 0x3FU);
    }
    i += size;
    const int byte = byte_1252_of(code_point);
    if (byte < 0) throw "Windows-1252 has no such character";
    result.bytes[result.length++] = static_cast<char>(byte);
  }
  return result;
}

template <Utf8Text Text>
inline constexpr auto kConverted = convert<Text>();

}  // namespace literal_detail

/// A German text, written readably in the UTF-8 source, as the Windows-1252 bytes that the program
/// works with. The conversion happens at compile time; a character that the code page lacks does
/// not compile.
template <literal_detail::Utf8Text Text>
constexpr std::string_view operator""_de() {
  return {literal_detail::kConverted<Text>.bytes.data(), literal_detail::kConverted<Text>.length};
}

}  // namespace quenda

#include "sources/file_encoding.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quenda {
namespace {

/// Position of the first byte from 0x80 up, or the end, looking at eight bytes at a time.
std::size_t skip_ascii(std::string_view text, std::size_t at) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  while (at + sizeof(std::uint64_t) <= text.size()) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, text.data() + at, sizeof(bytes));
    if ((bytes & kHighBits) != 0) break;
    at += sizeof(bytes);
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80) ++at;
  return at;
}

/// Bytes of the character that begins here, 0 for none that UTF-8 has.
std::size_t utf8_length(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = lead < 0xC2   ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || at + length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(text[at + i]) & 0xC0U) != 0x80U) return 0;
  }
  return length;
}

/// Western texts in UTF-16 have a zero byte in every other place.
bool has_many_zeros(std::string_view text) {
  constexpr std::size_t kSample = 512;
  text = text.substr(0, kSample);
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\0')) * 3 > text.size();
}

}  // namespace

FileEncoding guess_encoding(std::string_view text) {
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) return FileEncoding::kUtf16;
  if (has_many_zeros(text)) return FileEncoding::kUtf16;
  if (text.starts_with("\xEF\xBB\xBF")) return FileEncoding::kUtf8;
  std::size_t at = skip_ascii(text, 0);
  if (at == text.size()) return FileEncoding::kWindows1252;
  while (at < text.size()) {
    const std::size_t length = utf8_length(text, at);
    if (length == 0) return FileEncoding::kWindows1252;
    at = skip_ascii(text, at + length);
  }
  return FileEncoding::kUtf8;
}

}  // namespace quenda

#include "settings/ini/ini_encoding.h"

#include <cstddef>
#include <cstdint>

#include "text/code_page_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kSwappedMark = "\xFE\xFF";

constexpr unsigned byte_of(char c) { return static_cast<unsigned char>(c); }

/// One UTF-16 unit in UTF-8; halves of a pair become three bytes each.
void append_unit(std::string& out, unsigned unit) {
  if (unit < 0x80) {
    out += static_cast<char>(unit);
    return;
  }
  if (unit < 0x800) {
    out += static_cast<char>(0xC0U | (unit >> 6U));
  } else {
    out += static_cast<char>(0xE0U | (unit >> 12U));
    out += static_cast<char>(0x80U | ((unit >> 6U) & 0x3FU));
  }
  out += static_cast<char>(0x80U | (unit & 0x3FU));
}

/// Cuts one character off the front of a UTF-8 text; -1 for a byte that belongs to none.
std::int32_t take_character(std::string_view& text) {
  const unsigned lead = byte_of(text.front());
  const std::size_t size = lead < 0x80   ? 1
                           : lead < 0xC2 ? 0
                           : lead < 0xE0 ? 2
                           : lead < 0xF0 ? 3
                                         : 4;
  std::uint32_t code_point = size <= 1 ? lead : lead & (0x7FU >> size);
  bool whole = size != 0 && size <= text.size() && lead < 0xF5;
  for (std::size_t i = 1; whole && i < size; ++i) {
    whole = (byte_of(text[i]) & 0xC0U) == 0x80U;
    code_point = (code_point << 6U) | (byte_of(text[i]) & 0x3FU);
  }
  text.remove_prefix(whole ? size : 1);
  return whole ? static_cast<std::int32_t>(code_point) : -1;
}

}  // namespace

IniEncoding ini_encoding(std::string_view content) {
  if (content.starts_with(kUtf8Mark)) return IniEncoding::kUtf8;
  if (content.starts_with(kUtf16Mark)) return IniEncoding::kUtf16;
  if (content.starts_with(kSwappedMark)) return IniEncoding::kUtf16Swapped;
  return IniEncoding::kWindows1252;
}

std::string editable_ini(std::string_view content, IniEncoding encoding) {
  if (encoding == IniEncoding::kWindows1252) return std::string(content);
  if (encoding == IniEncoding::kUtf8) return std::string(content.substr(kUtf8Mark.size()));
  const std::size_t low = encoding == IniEncoding::kUtf16 ? 0 : 1;
  std::string editable;
  editable.reserve(content.size() / 2);
  for (std::size_t i = 2; i + 1 < content.size(); i += 2) {
    append_unit(editable, byte_of(content[i + low]) | (byte_of(content[i + 1 - low]) << 8U));
  }
  return editable;
}

std::string stored_ini(std::string_view editable, IniEncoding encoding) {
  if (encoding == IniEncoding::kWindows1252) return std::string(editable);
  if (encoding == IniEncoding::kUtf8) return concat(kUtf8Mark, editable);
  const bool swapped = encoding == IniEncoding::kUtf16Swapped;
  std::string stored(swapped ? kSwappedMark : kUtf16Mark);
  while (!editable.empty()) {
    const auto unit = static_cast<unsigned>(take_character(editable)) & 0xFFFFU;
    const char low = static_cast<char>(unit & 0xFFU);
    const char high = static_cast<char>(unit >> 8U);
    stored += swapped ? high : low;
    stored += swapped ? low : high;
  }
  return stored;
}

std::string to_editable(std::string_view text, IniEncoding encoding) {
  return encoding == IniEncoding::kWindows1252 ? std::string(text) : to_utf8(text);
}

std::string from_editable(std::string_view editable, IniEncoding encoding) {
  if (encoding == IniEncoding::kWindows1252) return std::string(editable);
  std::string text;
  text.reserve(editable.size());
  while (!editable.empty()) {
    const std::int32_t character = take_character(editable);
    const int byte = character < 0 ? -1 : byte_1252_of(static_cast<char32_t>(character));
    if (character > 0xFFFF) text += '?';
    text += byte < 0 ? '?' : static_cast<char>(byte);
  }
  return text;
}

}  // namespace quenda

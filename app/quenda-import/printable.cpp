#include "app/quenda-import/printable.h"

#include <algorithm>

namespace quenda {
namespace {

/// Control characters, and the five codes that the code page leaves to the control characters of
/// Unicode.
bool is_control(char character) {
  constexpr std::string_view kUnused = "\x81\x8D\x8F\x90\x9D";
  const auto code = static_cast<unsigned char>(character);
  constexpr unsigned char kBlank = 0x20;
  constexpr unsigned char kDelete = 0x7F;
  return code < kBlank || code == kDelete || kUnused.find(character) != kUnused.npos;
}

template <class IsShown>
std::string with_codes(std::string_view text, IsShown shown_as_code) {
  if (std::none_of(text.begin(), text.end(), shown_as_code)) return std::string(text);
  std::string result;
  for (const char character : text) {
    if (!shown_as_code(character)) {
      result.push_back(character);
      continue;
    }
    constexpr std::string_view kDigits = "0123456789abcdef";
    constexpr unsigned kBase = 16;
    const unsigned code = static_cast<unsigned char>(character);
    result.append("\\x").append(1, kDigits[code / kBase]).append(1, kDigits[code % kBase]);
  }
  return result;
}

}  // namespace

std::string printable(std::string_view text) {
  return with_codes(text,
                    [](char character) { return character != '\n' && is_control(character); });
}

std::string on_one_line(std::string_view text) {
  return with_codes(text, [](char character) { return character == '\r' || character == '\n'; });
}

}  // namespace quenda

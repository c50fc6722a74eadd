#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Texts are Windows-1252 bytes, one character per byte, so every length and position here is a
// count of bytes. Nothing depends on the locale of the machine.
namespace quenda {

inline constexpr std::string_view kCrLf = "\r\n";

/// The parts one after another.
std::string concat(std::initializer_list<std::string_view> parts);

template <class... Parts>
std::string concat(const Parts&... parts) {
  return concat({std::string_view(parts)...});
}

/// The text without the blanks (code 32 only, no tabs) at both ends.
inline std::string_view trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

/// Small letter of a character; covers the letters of the whole code page, umlauts too.
char to_lower(char character);
std::string to_lower(std::string_view text);

/// Whether two texts are equal apart from letter case.
bool equal_ignoring_case(std::string_view a, std::string_view b);

/// Every occurrence of `from`, left to right and without overlap, replaced; an empty `from`
/// replaces nothing.
std::string replace_all(std::string_view text, std::string_view from, std::string_view to);

/// The parts between the separators; an empty text has one empty part.
std::vector<std::string_view> split(std::string_view text, std::string_view separator);

/// Cuts the text before the first `separator` off the front of `rest`. The last part is the whole
/// rest, which then has no data pointer any more; the next call gives false.
bool next_part(std::string_view& rest, std::string_view separator, std::string_view& part);

/// How often the character stands in the text.
std::size_t count_of(std::string_view text, char character);

/// A set of characters with a quick look-up.
class CharacterSet {
 public:
  constexpr explicit CharacterSet(std::string_view characters) {
    for (const char c : characters) members_[static_cast<unsigned char>(c)] = true;
  }
  [[nodiscard]] constexpr bool contains(char c) const {
    return members_[static_cast<unsigned char>(c)];
  }

 private:
  std::array<bool, 256> members_{};
};

/// Whether a character is one of the digits 0 to 9.
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// Windows-1252 to UTF-8; every byte has a character.
std::string to_utf8(std::string_view text);
/// The same behind what stands in `out`.
void append_utf8(std::string& out, std::string_view text);

/// UTF-8 to Windows-1252; nothing when the text is no valid UTF-8 or has a character that the code
/// page lacks.
std::optional<std::string> from_utf8(std::string_view utf8);

}  // namespace quenda

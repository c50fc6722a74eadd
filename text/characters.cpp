#include "text/characters.h"

#include <algorithm>
#include <array>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::int16_t kBackspace = 8;
constexpr std::int16_t kEnter = 13;
constexpr std::int16_t kEscape = 27;

constexpr std::string_view kEditKeys = "\x08\x1B\x0D";
static_assert(kEditKeys[0] == kBackspace && kEditKeys[1] == kEscape && kEditKeys[2] == kEnter);

/// The keys that a filter lets through besides the digits.
constexpr std::string_view other_keys(KeyFilter filter) {
  switch (filter) {
    case KeyFilter::kDate:
      return "\x08 .";
    case KeyFilter::kNumCR:
      return kEditKeys;
    case KeyFilter::kNumCRwc:
      return "\x08\x1B\x0D*?";
    case KeyFilter::kNumTel:
      return "\x08\x1B\x0D+";
    case KeyFilter::kNum:
    case KeyFilter::kNoSem:
      break;
  }
  return "\x08";
}

std::string replace_each(std::string_view text, std::string_view characters,
                         std::string_view replacement) {
  std::string result(text);
  if (replacement.find_first_of(characters) != replacement.npos) {
    // One character after the other: the replacement of one is text for those that follow.
    for (const char c : characters) result = replace_all(result, {&c, 1}, replacement);
    return result;
  }
  std::array<bool, 256> listed{};
  for (const char c : characters) listed[static_cast<unsigned char>(c)] = true;
  const auto is_listed = [&](char c) { return listed[static_cast<unsigned char>(c)]; };
  const auto first = std::find_if(result.begin(), result.end(), is_listed);
  if (first == result.end()) return result;
  std::size_t at = static_cast<std::size_t>(first - result.begin());
  result.resize(at);
  for (; at < text.size(); ++at) {
    if (is_listed(text[at])) {
      result += replacement;
    } else {
      result += text[at];
    }
  }
  return result;
}

}  // namespace

std::string strip_characters(std::string_view text, std::string_view characters,
                             std::string_view replacement) {
  std::string result = replace_each(text, characters, replacement);
  std::size_t double_point = result.find("..");
  if (double_point == result.npos) return result;
  std::size_t written = double_point;
  for (std::size_t i = double_point; i < result.size(); ++i) {
    if (result[i] == '.' && written > 0 && result[written - 1] == '.') continue;
    result[written++] = result[i];
  }
  result.resize(written);
  return result;
}

std::size_t count_occurrences(std::string_view text, std::string_view part) {
  if (part == kCrLf) part = part.substr(0, 1);
  if (part.size() == 1) return count_of(text, part.front());
  if (part.empty()) return text.size();
  std::size_t count = 0;
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

std::int16_t filter_key(std::int16_t code, KeyFilter filter) {
  if (filter == KeyFilter::kNoSem) return code == ';' ? std::int16_t{','} : code;
  if (filter == KeyFilter::kDate && code == ',') return '.';
  if (code <= 0 || code > 0x7F) return 0;
  const char key = static_cast<char>(code);
  return is_digit(key) || other_keys(filter).find(key) != std::string_view::npos ? code
                                                                                 : std::int16_t{0};
}

}  // namespace quenda

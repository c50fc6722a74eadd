#include "book/number_doubt.h"

#include <algorithm>

#include "text/text.h"

namespace quenda {
namespace {

std::size_t digits_in(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), is_digit));
}

bool is_letter(char c) {
  const char lower = to_lower(c);
  return (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(c) >= 0xC0;
}

/// Digits with at most one decimal sign, then "E" and digits, which may have a sign.
bool is_shortened(std::string_view text) {
  const auto letter = text.find_first_of("eE");
  if (letter == text.npos) return false;
  const std::string_view mantissa = text.substr(0, letter);
  std::string_view exponent = text.substr(letter + 1);
  if (exponent.starts_with('+') || exponent.starts_with('-')) exponent.remove_prefix(1);
  const std::size_t signs = digits_in(mantissa) < mantissa.size() ? 1 : 0;
  return !exponent.empty() && digits_in(exponent) == exponent.size() &&
         digits_in(mantissa) + signs == mantissa.size() && digits_in(mantissa) > 0 &&
         mantissa.find_first_not_of("0123456789.,") == mantissa.npos;
}

/// Two of the parts are long enough to be a number each, or all of it is too long for one.
bool holds_several(std::string_view text) {
  constexpr std::size_t kFewestDigits = 6;
  constexpr std::size_t kMostDigits = 17;  // "00" and the 15 of international numbers
  if (digits_in(text) > kMostDigits) return true;
  std::size_t numbers = 0;
  while (!text.empty()) {
    const auto end = text.find_first_of("/;,|:\r\n");
    if (digits_in(text.substr(0, end)) >= kFewestDigits) ++numbers;
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
  }
  return numbers > 1;
}

}  // namespace

NumberDoubt doubt_about(std::string_view number) {
  number = trim(number);
  if (is_shortened(number)) return NumberDoubt::kExponent;
  if (std::any_of(number.begin(), number.end(), is_letter)) return NumberDoubt::kLetters;
  if (holds_several(number)) return NumberDoubt::kSeveral;
  const auto first = number.find_first_of("+0123456789");
  const bool complete = first == number.npos || number[first] == '0' || number[first] == '+';
  return complete ? NumberDoubt::kNone : NumberDoubt::kNoAreaCode;
}

}  // namespace quenda

#include "text/conversions.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <system_error>

#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

struct NumberParts {
  bool negative = false;
  std::string_view integer;   // digits and "."
  std::string_view decimals;  // digits
  std::string_view exponent;  // sign and digits
};

constexpr bool is_sign(char c) { return c == '+' || c == '-'; }

const char* skip_digits(const char* at, const char* end) {
  while (at != end && is_digit(*at)) ++at;
  return at;
}

/// Whether all of the eight characters from there on are digits.
bool are_eight_digits(const char* at) {
  constexpr std::uint64_t kHighHalves = 0xF0F0F0F0F0F0F0F0U;
  constexpr std::uint64_t kZeros = 0x3030303030303030U;
  constexpr std::uint64_t kSixes = 0x0606060606060606U;
  std::uint64_t eight = 0;
  std::memcpy(&eight, at, sizeof eight);
  // A digit has 3 as its high half, also when 6 is added. The carry of a character above 0xF9 does
  // not matter: that one is found out by itself.
  return (eight & kHighHalves) == kZeros && ((eight + kSixes) & kHighHalves) == kZeros;
}

/// Whether a text is made of digits alone, as nearly all numbers are; at least eight of them.
bool is_long_digits(std::string_view text) {
  constexpr std::size_t kAtOnce = sizeof(std::uint64_t);
  if (text.size() < kAtOnce) return false;
  const std::size_t last = text.size() - kAtOnce;  // may overlap the eight before
  for (std::size_t at = 0; at < last; at += kAtOnce) {
    if (!are_eight_digits(text.data() + at)) return false;
  }
  return are_eight_digits(text.data() + last);
}

std::string_view view(const char* begin, const char* end) {
  return {begin, static_cast<std::size_t>(end - begin)};
}

/// Takes a numeric text apart; false for any other text.
bool scan(std::string_view text, NumberParts& parts) {
  text = trim(text);
  if (text.empty()) return false;
  if (is_sign(text.front())) {
    parts.negative = text.front() == '-';
    text.remove_prefix(1);
  } else if (is_sign(text.back())) {
    parts.negative = text.back() == '-';
    text.remove_suffix(1);
  }
  const char* const end = text.data() + text.size();
  const char* at = text.data();
  bool digits = false;
  for (; at != end && (is_digit(*at) || *at == '.'); ++at) digits = digits || *at != '.';
  parts.integer = view(text.data(), at);
  if (at != end && *at == ',') {
    const char* const start = ++at;
    at = skip_digits(at, end);
    parts.decimals = view(start, at);
    digits = digits || at != start;
  }
  if (!digits) return false;
  if (at != end && (*at == 'E' || *at == 'e')) {
    const char* const start = ++at;
    if (at != end && is_sign(*at)) ++at;
    const char* const first_digit = at;
    at = skip_digits(at, end);
    if (at == first_digit) return false;
    parts.exponent = view(start, at);
  }
  return at == end;
}

/// A number in the notation of `std::from_chars`. What is too large is an overflow, what is too
/// small is 0.
double read_plain(const std::string& plain) {
  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  const auto exponent = plain.find('e');
  const bool below_one = exponent != plain.npos ? plain.compare(exponent, 2, "e-") == 0
                                                : plain.find_first_not_of("-0") == plain.find('.');
  if (!below_one) raise_fault(kFaultOverflow);
  return 0;
}

/// The value of one to four plain digits, which is what most number fields hold; -1 for any other
/// text.
int short_number(std::string_view text) {
  if (text.empty() || text.size() > 4) return -1;
  int value = 0;
  for (const char c : text) {
    if (!is_digit(c)) return -1;
    value = 10 * value + (c - '0');
  }
  return value;
}

}  // namespace

bool is_numeric(std::string_view text) {
  if (is_long_digits(text)) return true;
  NumberParts parts;
  return scan(text, parts);
}

double to_number(std::string_view text) {
  NumberParts parts;
  if (!scan(text, parts)) raise_fault(kFaultTypeMismatch);
  std::string plain(parts.negative ? "-0" : "0");
  for (const char c : parts.integer) {
    if (c != '.') plain += c;
  }
  plain.append(".0").replace(plain.size() - 1, parts.decimals.empty() ? 0 : 1, parts.decimals);
  if (!parts.exponent.empty()) plain.append("e").append(parts.exponent);
  return read_plain(plain);
}

std::int16_t to_int16(std::string_view text) {
  if (const int number = short_number(text); number >= 0) return static_cast<std::int16_t>(number);
  const double value = std::nearbyint(to_number(text));
  using Limits = std::numeric_limits<std::int16_t>;
  if (value < Limits::min() || value > Limits::max()) raise_fault(kFaultOverflow);
  return static_cast<std::int16_t>(value);
}

bool to_boolean(std::string_view text) {
  if (const int number = short_number(text); number >= 0) return number != 0;
  for (const std::string_view word : {"true", "wahr"}) {
    if (equal_ignoring_case(text, word)) return true;
  }
  for (const std::string_view word : {"false", "falsch"}) {
    if (equal_ignoring_case(text, word)) return false;
  }
  return to_number(text) != 0;
}

double leading_number(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c == ' ' || c == '\t' || c == '\n') continue;
    const bool exponent = c == 'e' || c == 'E' || c == 'd' || c == 'D';
    if (!exponent && !is_digit(c) && !is_sign(c) && c != '.') break;
    if (c == '+' && plain.empty()) continue;
    plain += exponent ? 'e' : c;
  }
  return read_plain(plain);
}

}  // namespace quenda

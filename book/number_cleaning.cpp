#include "book/number_cleaning.h"

#include <array>
#include <cstdint>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kLongestLocalNumber = 8;
constexpr std::size_t kShortestCode = 3;

/// What becomes of a character of a number.
enum class Cleaning : std::uint8_t { kDropped = 0, kKept = 1, kDecided = 2 };

constexpr std::array<Cleaning, 256> make_cleaning_table() {
  std::array<Cleaning, 256> table{};
  table.fill(Cleaning::kKept);
  for (const char c : std::string_view(" -)/\\,.[]\"=?*#")) {
    table[static_cast<unsigned char>(c)] = Cleaning::kDropped;
  }
  for (const char c : {'+', '('}) table[static_cast<unsigned char>(c)] = Cleaning::kDecided;
  return table;
}

constexpr auto kCleaning = make_cleaning_table();

/// Puts the number there with "00" for "+" and without punctuation; returns where it ends.
char* put_without_punctuation(std::string_view number, char* to) {
  for (std::size_t i = 0; i < number.size(); ++i) {
    const char c = number[i];
    // Each one is put there, and the next one over it where it does not stay: digits and
    // punctuation follow each other too irregularly for a branch.
    const Cleaning cleaning = kCleaning[static_cast<unsigned char>(c)];
    *to = c;
    to += static_cast<std::uint8_t>(cleaning) & 1U;
    if (cleaning != Cleaning::kDecided) continue;
    if (c == '+') {
      *to++ = '0';
      *to++ = '0';
    } else if (i + 1 < number.size()) {
      // "(0" goes as a whole. A "+" counts as "00", of which the second "0" stays.
      const char next = number[i + 1];
      if (next == '0' || next == '+') ++i;
      if (next == '+') *to++ = '0';
    }
  }
  return to;
}

/// Whether a text has a part somewhere. The last character is compared first: country codes begin
/// with zeros, which numbers have many of.
bool has_part(std::string_view text, std::string_view part) {
  const std::size_t behind = part.size() - 1;
  for (std::size_t last = behind; last < text.size(); ++last) {
    if (text[last] == part.back() && text.substr(last - behind, part.size()) == part) return true;
  }
  return false;
}

/// Puts a text there without any occurrence of a part; returns where it ends. It may be the place
/// where the text stands.
char* put_without(std::string_view text, std::string_view part, char* to) {
  while (!text.empty()) {
    if (text.front() == part.front() && text.starts_with(part)) {
      text.remove_prefix(part.size());
    } else {
      *to++ = text.front();
      text.remove_prefix(1);
    }
  }
  return to;
}

}  // namespace

void clean_number(std::string_view number, std::string_view own_country_code,
                  std::string& cleaned) {
  // Most numbers are short: for them the text's memory is not cleared first, only to be
  // overwritten.
  std::array<char, 128> few;  // NOLINT(cppcoreguidelines-pro-type-member-init): cleared for nothing
  std::string many;
  const std::size_t size = 2 * number.size() + 1;
  if (size > few.size()) many.resize(size);
  char* const room = size > few.size() ? many.data() : few.data();
  char* first = room + 1;  // behind room for a leading "0"
  char* end = put_without_punctuation(number, first);
  const std::string_view all(first, static_cast<std::size_t>(end - first));
  if (!own_country_code.empty() && all.starts_with(own_country_code)) {
    // Further ones are rare.
    first += own_country_code.size();
    const std::string_view rest = all.substr(own_country_code.size());
    if (has_part(rest, own_country_code)) {
      end = put_without(rest, own_country_code, first);
    }
  }
  if (end == first || *first != '0') *--first = '0';
  cleaned.assign(first, static_cast<std::size_t>(end - first));
}

std::string clean_number(std::string_view number, std::string_view own_country_code) {
  std::string cleaned;
  clean_number(number, own_country_code, cleaned);
  return cleaned;
}

std::string add_area_code(std::string_view number, std::string_view own_area_code) {
  if (number.starts_with('0') || number.size() > kLongestLocalNumber) return std::string(number);
  return concat(own_area_code, number);
}

bool country_code_complete(std::string_view country) {
  return country.starts_with("00") && country.size() >= kShortestCode;
}

bool own_codes_complete(std::string_view country, std::string_view area) {
  return country_code_complete(country) && area.starts_with('0') && area.size() >= kShortestCode;
}

bool own_codes_acceptable(std::string_view country, std::string_view area) {
  return country.starts_with('0') && area.starts_with('0') && country.size() >= kShortestCode &&
         area.size() >= kShortestCode;
}

}  // namespace quenda

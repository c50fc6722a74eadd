#include "book/number_cleaning.h"

#include <array>
#include <cstdint>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kLongestLocalNumber = 8;
constexpr std::size_t kShortestCode = 3;

/// What becomes of a character of a number.
enum class Cleaning : std::uint8_t { kDropped, kKept, kDecided };

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

/// Takes every occurrence of a part out.
void remove_all(std::string& text, std::string_view part) {
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at)) {
    text.erase(at, part.size());
  }
}

}  // namespace

void clean_number(std::string_view number, std::string_view own_country_code,
                  std::string& cleaned) {
  cleaned.resize(2 * number.size() + 1);
  char* to = cleaned.data() + 1;  // behind room for a leading "0"
  for (std::size_t i = 0; i < number.size(); ++i) {
    const char c = number[i];
    // Each one is put there, and the next one over it where it does not stay: digits and
    // punctuation follow each other too irregularly for a branch.
    const Cleaning cleaning = kCleaning[static_cast<unsigned char>(c)];
    *to = c;
    to += cleaning == Cleaning::kKept ? 1 : 0;
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
  cleaned.resize(static_cast<std::size_t>(to - cleaned.data()));
  if (!own_country_code.empty() &&
      std::string_view(cleaned).substr(1).starts_with(own_country_code)) {
    cleaned.erase(0, 1);
    remove_all(cleaned, own_country_code);
    cleaned.insert(0, 1, '0');
  }
  const bool leading_zero = cleaned.size() > 1 && cleaned[1] == '0';
  if (leading_zero) {
    cleaned.erase(0, 1);
  } else {
    cleaned[0] = '0';
  }
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

#include "book/number_cleaning.h"

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kLongestLocalNumber = 8;
constexpr std::size_t kShortestCode = 3;

/// The characters that numbers are written with and that no number keeps.
constexpr CharacterSet kPunctuation(" -()/\\,.[]\"\"+=?*#");

}  // namespace

std::string clean_number(std::string_view number, std::string_view own_country_code) {
  // "+" becomes "00" before the bracket rule looks for "(0", and before the punctuation goes, of
  // which it would be a part.
  std::string dialled;
  if (number.find('+') != number.npos) number = dialled = replace_all(number, "+", "00");
  std::string result;
  for (std::size_t i = 0; i < number.size(); ++i) {
    if (number[i] == '(' && i + 1 < number.size() && number[i + 1] == '0') {
      ++i;
    } else if (!kPunctuation.contains(number[i])) {
      result += number[i];
    }
  }
  if (!own_country_code.empty() && result.starts_with(own_country_code)) {
    result = replace_all(result, own_country_code, "");
  }
  if (!result.starts_with('0')) result.insert(0, 1, '0');
  return result;
}

std::string add_area_code(std::string_view number, std::string_view own_area_code) {
  if (number.starts_with('0') || number.size() > kLongestLocalNumber) return std::string(number);
  return concat(own_area_code, number);
}

bool own_codes_complete(std::string_view country, std::string_view area) {
  return country.starts_with("00") && area.starts_with('0') && country.size() >= kShortestCode &&
         area.size() >= kShortestCode;
}

bool own_codes_acceptable(std::string_view country, std::string_view area) {
  return country.starts_with('0') && area.starts_with('0') && country.size() >= kShortestCode &&
         area.size() >= kShortestCode;
}

}  // namespace quenda

#pragma once

#include <string>
#include <string_view>

// Telephone numbers in the suite's national dialling form, and the user's own codes. The country
// code is text like "0049", the area code text like "030".
namespace quenda {

/// A number in national dialling form: "00" for "+", no "(0" of a trunk prefix in brackets, no
/// punctuation, without the own country code, and with a leading "0". A number that begins with the
/// own country code loses every further occurrence of it too. Never empty: at least "0".
std::string clean_number(std::string_view number, std::string_view own_country_code);
/// The same into a text whose memory is used again.
void clean_number(std::string_view number, std::string_view own_country_code, std::string& cleaned);

/// A short local number (no leading "0", at most 8 characters) with the own area code in front; any
/// other number as it is.
std::string add_area_code(std::string_view number, std::string_view own_area_code);

/// Whether the own country code is: "00" and a digit more.
bool country_code_complete(std::string_view country);
/// Whether the own codes are good enough to import with: "00" and "0" in front, three characters
/// each.
bool own_codes_complete(std::string_view country, std::string_view area);

/// Whether the area code dialog may be left with these codes: a single "0" in front of the country
/// code is enough here.
bool own_codes_acceptable(std::string_view country, std::string_view area);

}  // namespace quenda

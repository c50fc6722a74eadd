#pragma once

#include <cstdint>
#include <string_view>

// Texts as numbers and flags, the way a German Windows reads them: "." groups thousands, "," is the
// decimal sign. Faults: 13 the text is no such value, 6 the value is too large.
namespace quenda {

/// Whether the whole text is a number: blanks around it, one sign in front or behind, digits with
/// "." anywhere among the integer digits, "," and decimals, an exponent. An empty text is none.
bool is_numeric(std::string_view text);

/// The value of a numeric text.
double to_number(std::string_view text);

/// A numeric text as a whole 16-bit number, halves rounded to the even neighbour.
std::int16_t to_int16(std::string_view text);

/// "True", "Wahr" and every number but 0 are true, "False", "Falsch" and 0 are false; letter case
/// does not matter.
bool to_boolean(std::string_view text);

/// The number at the start of a text, 0 for none. Blanks, tabs and line feeds are skipped wherever
/// they stand, so "12 34 m" is 1234; "." is the decimal sign here.
double leading_number(std::string_view text);

}  // namespace quenda

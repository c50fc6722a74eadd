#pragma once

#include <string>
#include <string_view>
#include <vector>

// What becomes of single cells when a file is adapted: the rules of names, addresses and numbers,
// as far as they do not depend on where in the file a cell stands.
namespace quenda {

/// A name or an address, in one line and without what would break an entry's line: "," stands for
/// ";", and the marks of a contact card that the book keeps are not marks any more.
std::string adapted_text(std::string_view field);

/// Whether `adapted_text` would change anything; quick, for the many fields it leaves alone.
bool needs_adapting(std::string_view field);

/// Whether a cell is one number as it stands, or empty; quick, as most are.
bool is_plain_number(std::string_view cell);

/// The numbers of one cell, each without the remark behind it, with plain dashes, blanks and
/// digits. They may stand below each other, or with " ::: ", ";" or "/" between, the last only
/// where both sides are whole numbers. `delimiter` is the character that "|" stands for. Empty for
/// an empty cell; what is no number stays as it is.
std::vector<std::string> numbers_in_cell(std::string_view cell, char delimiter);

/// The name of an entry from its parts: the chosen name, else the display name, else the company.
/// Blanks count as nothing.
std::string_view name_or_stand_in(std::string_view name, std::string_view display,
                                  std::string_view company);

}  // namespace quenda

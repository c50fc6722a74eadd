#pragma once

#include <string>
#include <string_view>

// What a text has to be before it becomes a cell of an entry. A line break in a cell would cut the
// book's line in two, and a ";" would shift its fields.
namespace quenda {

/// The text with a blank for every line break: CR LF, a lone CR, a lone LF.
std::string without_line_breaks(std::string_view text);

/// A name, address or suffix that was typed, pasted or comes from Outlook: without line breaks, and
/// with "," for ";".
std::string entry_text(std::string_view text);

/// A number of such an origin: without line breaks and without ";".
std::string entry_number(std::string_view text);

}  // namespace quenda

#pragma once

#include <string>
#include <string_view>

// A line break inside a quoted field of a converted file. The reader of delimited text has no place
// for it, and numbers below each other in one cell are told apart by it, so it is kept as a sign
// that no file has: a control character, which the conversion takes out of everything else.
namespace quenda {

inline constexpr char kKeptCr = '\x0E';
inline constexpr char kKeptLf = '\x0F';

constexpr bool is_kept_break(char c) { return c == kKeptCr || c == kKeptLf; }

/// The field with its line breaks as the file has them.
std::string with_line_breaks(std::string_view field);

/// The field in one line: a blank stands for each line break.
std::string in_one_line(std::string_view field);

}  // namespace quenda

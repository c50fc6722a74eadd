#pragma once

#include <optional>
#include <string_view>

namespace quenda {

/// A caller as a call log names him; the views point into the line.
struct IspyCaller {
  std::string_view name;
  std::string_view number;
};

/// What a line of a call log holds, usable or not: date, time, name, "[#", number, "]".
struct IspyLine {
  std::string_view name;    // empty also where the line has none
  std::string_view number;  // empty for a withheld number and for a line without one
  bool well_formed = false;
};
IspyLine read_ispy_line(std::string_view line);

/// Whether a caller's name can stand in the book: no placeholder in angle brackets, no number.
bool usable_caller_name(std::string_view name);

/// The caller of one line of an ISpy call log: date, time, name, "[#", number, "]". Nothing for a
/// line without one of these, for placeholders in angle brackets, for withheld numbers, and for
/// callers whose name is only a number.
std::optional<IspyCaller> ispy_caller(std::string_view line);

}  // namespace quenda

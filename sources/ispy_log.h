#pragma once

#include <optional>
#include <string_view>

namespace quenda {

/// A caller as a call log names him; the views point into the line.
struct IspyCaller {
  std::string_view name;
  std::string_view number;
};

/// The caller of one line of an ISpy call log: date, time, name, "[#", number, "]". Nothing for a
/// line without one of these, for placeholders in angle brackets, for withheld numbers, and for
/// callers whose name is only a number.
std::optional<IspyCaller> ispy_caller(std::string_view line);

}  // namespace quenda

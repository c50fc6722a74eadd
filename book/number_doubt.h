#pragma once

#include <cstdint>
#include <string_view>

namespace quenda {

/// Why a number that can be imported may not be the one that was meant.
enum class NumberDoubt : std::uint8_t {
  kNone,
  kNoAreaCode,  // begins neither with "0" nor with "+", which dialling form puts a "0" before
  kExponent,    // a spreadsheet has shortened it: "4,93012E+11"
  kLetters,     // of which some count as digits of an exponent
  kSeveral,     // more than one number run together
};

/// Looks at a number as its source has it.
[[nodiscard]] NumberDoubt doubt_about(std::string_view number);

}  // namespace quenda

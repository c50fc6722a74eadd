#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quenda {

/// The text with each of the characters replaced by the replacement. Afterwards ".." becomes "."
/// until none is left, wherever the points come from.
std::string strip_characters(std::string_view text, std::string_view characters,
                             std::string_view replacement);

/// At how many positions of the text the part begins; overlapping occurrences count. Line breaks
/// (CR LF as part) are counted by their CR alone.
std::size_t count_occurrences(std::string_view text, std::string_view part);

/// Which keys a field takes.
enum class KeyFilter {
  kNoSem,    // all; ";" becomes ",", or else it would shift the fields of an entry
  kDate,     // digits, backspace, blank, "."; "," becomes "."
  kNum,      // digits, backspace
  kNumCR,    // these, escape and enter
  kNumCRwc,  // these, "*" and "?"
  kNumTel,   // digits, backspace, escape, enter, "+"
};

/// What a typed key (Windows-1252 code) puts into a field, 0 for nothing.
std::int16_t filter_key(std::int16_t code, KeyFilter filter);

}  // namespace quenda

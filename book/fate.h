#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// What became of a number of the source. Every number has exactly one fate, so that the sum of all
// fates is the count of numbers in the source: nothing vanishes without a word.
namespace quenda {

enum class Fate : std::uint8_t {
  kAdded,       // new in the book
  kSame,        // the book has number, name and address already
  kReplaced,    // takes the place of an entry with another name or address
  kKept,        // gives way to such an entry
  kAsked,       // the user would be asked; a run that only shows cannot
  kWithheld,    // new, but nothing is written: the book's own doubles outweigh the new entries
  kRepeated,    // the same line as an earlier one of the source
  kDouble,      // the number of another entry of this import, which stays instead
  kNoNumber,    // the cell is empty
  kNotNumeric,  // no number that can be dialled
  kTooShort,    // fewer than 8 characters
  kShortName,   // name below 3 characters, and such names are kept out
  kSplit,       // a ";" in the name broke the entry
  kRemoved,     // taken out of the list by the user
  kNoName,      // a caller without a usable name
  kUnread,      // the reading or composing ended before it
};
inline constexpr std::size_t kFates = 16;

using FateCounts = std::array<std::size_t, kFates>;

/// How a fate is called.
struct FateWords {
  std::string_view key;     // for programs: "not_numeric"
  std::string_view word;    // one German word
  std::string_view reason;  // a German clause that tells why
};
[[nodiscard]] const FateWords& words_of(Fate fate);

/// Whether a number was lost that the user may have wanted: a nightly run can be told to fail then.
[[nodiscard]] bool is_lost(Fate fate);

/// How many numbers were lost.
[[nodiscard]] std::size_t count_lost(const FateCounts& counts);

/// The fates of a source in one German sentence: "1.204 Nummern gelesen: 1.150 neu, 31 leer."
/// Fates that no number has are left out.
[[nodiscard]] std::string fate_summary(const FateCounts& counts);

}  // namespace quenda

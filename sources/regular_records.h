#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/byte_block.h"

namespace quenda {

/// Finds the records of a delimited text that its cleaning leaves as they are, 64 bytes at a time.
/// In a regular record every quote opens a field or ends one, and between two such quotes stand no
/// delimiter and no half of a line break; line breaks are CR LF. Nearly all records of nearly all
/// files are regular, and nothing has to be done about them but to say where they end.
class RegularRecords {
 public:
  /// The text may be changed in front of the records that have been found.
  RegularRecords(std::string_view text, char delimiter);

  /// Finds the regular records that follow each other from a place on, at which a record begins and
  /// no field is open; not many more than `bytes`. Adds to `ends` the place behind the line break
  /// of each. The last record of a text, which no line break ends, is none of them.
  void find(std::size_t from, std::size_t bytes, std::vector<std::size_t>& ends) const;

 private:
  static constexpr std::size_t kWindow = 64;
  /// Where the characters that matter stand among 64 bytes: a bit for each byte, the first one's
  /// the lowest.
  struct Marks {
    std::uint64_t quotes = 0;
    std::uint64_t delimiters = 0;
    std::uint64_t cr = 0;
    std::uint64_t lf = 0;
  };
  /// What the bytes before tell of the first one behind them.
  struct Before;

  [[nodiscard]] Marks marks_of(const char* from) const;
  static std::uint64_t irregular(const Marks& marks, Before& before);

  std::string_view text_;
  ByteBlock delimiter_;
};

}  // namespace quenda

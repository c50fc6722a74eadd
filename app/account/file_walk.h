#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "app/account/list_rows.h"
#include "app/account/source_numbers.h"
#include "sources/record_table.h"
#include "sources/source_lines.h"
#include "wizard/composition.h"

// The numbers of a delimited file, and what the rules make of each before the merge.
namespace quenda {

/// How a delimited file was composed.
struct ComposedFile {
  const RecordTable& records;  // after the cleaning
  const SourceLines& lines;
  char delimiter;
  const Composition& composition;
  const CleanNumber& clean;
  bool suppress_short_names = false;
  /// Nothing was composed of the records from here on: their numbers are unread.
  std::size_t until = 0;
};

/// Walks over a delimited file. Returns the count of records behind the header; records of nothing
/// but delimiters do not count. A record whose numbers all stand in the list is not composed again:
/// nothing else has become of them.
std::size_t walk_file(const ComposedFile& file, ListRows& listed, const OnSourceNumber& on_number);

/// The number that an entry of a file was made of, as the file has it: of a cell with several
/// numbers the one that cleans to `number`, and `number` itself where none does (it was edited).
std::string number_in_file(const RecordTable& records, std::uint32_t origin, char delimiter,
                           const Composition& composition, const CleanNumber& clean,
                           std::string_view number);

}  // namespace quenda

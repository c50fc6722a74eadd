#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "sources/record_table.h"

namespace quenda {

/// What the records of a file say about themselves once the delimiter is known.
struct TableFacts {
  std::string number_in_header;    // a telephone number in the first line, which is no header then
  std::size_t uneven_records = 0;  // with more or fewer fields than the header
  std::size_t first_uneven = 0;    // the first of them, as its position in the table
  std::string repeated_name;       // the first column name that occurs twice
  std::size_t unnamed_columns = 0;
};

/// Looks at records before they are padded. Records of nothing but delimiters, and the surplus
/// delimiter of a last record without line end, do not count.
/// `ends_early`: records may leave out what is empty at their end.
TableFacts look_at_table(const RecordTable& records, char delimiter, bool ends_early = false);

}  // namespace quenda

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/record_table.h"

// Which columns of a known export are names, numbers and addresses.
namespace quenda {

/// The numbers that stand in one column of a known export.
struct ColumnNumbers {
  std::size_t column = 0;
  std::string heading;
  std::size_t count = 0;
};

/// A choice of columns as the wizard makes it: positions in the order of the file.
struct ColumnSuggestion {
  std::string_view name;  // of the program that the file comes from
  std::vector<std::size_t> names;
  bool flip_name = false;  // the last name stands behind the first one
  std::vector<std::size_t> numbers;
  std::array<std::string, 3> suffixes;  // per number row; empty for kinds that get none
  std::array<std::vector<std::size_t>, 2> addresses;
  int address_order = 0;          // position in the wizard's list of orders
  std::array<int, 3> bindings{};  // per number row: address 1 or 2, 0 for none
};

/// Columns that stand in where the chosen name columns are empty.
struct NameStandIns {
  std::optional<std::size_t> display;
  std::optional<std::size_t> company;
};

/// Whether a choice for this header is known, and of which program; "" for none. Column names in
/// UTF-8 count as well, since the file may be read as it is.
std::string_view known_export_name(const std::vector<std::string>& header);

/// The choice for a known header; nothing for an unknown one. Of numbers and addresses those count
/// that some record has. The records have to be padded or may be short.
std::optional<ColumnSuggestion> suggest_columns(const std::vector<std::string>& header,
                                                const RecordTable& records, char delimiter);

/// What stands in for a name: of a known export its own columns, else those that are called so.
NameStandIns name_stand_ins(const std::vector<std::string>& header);

/// How many numbers stand in each number column of a known export; columns without any are left
/// out.
std::vector<ColumnNumbers> count_numbers(const std::vector<std::string>& header,
                                         const RecordTable& records, char delimiter);

/// Those that stand in columns nobody chose.
std::vector<ColumnNumbers> unchosen_numbers(std::vector<ColumnNumbers> numbers,
                                            const std::vector<std::size_t>& chosen);

}  // namespace quenda

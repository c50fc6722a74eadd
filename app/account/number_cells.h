#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "sources/record_table.h"

namespace quenda {

/// The cells of one record in the number columns. Unlike `RecordFields`, which tells more of each
/// field, this looks for delimiters only.
class NumberCells {
 public:
  /// More columns than entries can be made of do not count.
  NumberCells(const RecordTable& records, char delimiter, std::vector<std::size_t> columns);

  /// How many columns count.
  [[nodiscard]] std::size_t columns() const { return columns_.size(); }

  /// Goes to a record.
  void find(std::size_t record);
  /// Its cell in one of the columns, counted from 0; nothing where it has no such field.
  [[nodiscard]] std::optional<std::string_view> operator[](std::size_t column) const {
    const std::size_t position = columns_[column];
    if (position < found_) return fields_[position];
    if (position <= padded_) return std::string_view();
    return std::nullopt;
  }

 private:
  const RecordTable& records_;
  char delimiter_;
  std::vector<std::size_t> columns_;
  std::vector<std::string_view> fields_;  // up to the last that is needed
  std::size_t found_ = 0;                 // of these
  std::size_t padded_ = 0;                // delimiters that the record has at least
};

}  // namespace quenda

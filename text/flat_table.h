#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quenda {

/// Rows of texts in one buffer: a million rows are three allocations, and reading a cell copies
/// nothing. Views into the table are good until it is changed.
class FlatTable {
 public:
  explicit FlatTable(std::size_t columns) : columns_(columns) {}

  [[nodiscard]] std::size_t columns() const { return columns_; }
  [[nodiscard]] std::size_t rows() const { return starts_.size(); }
  /// Row and column from 0; fault 9 beyond the end.
  [[nodiscard]] std::string_view cell(std::size_t row, std::size_t column) const;
  void reserve(std::size_t rows, std::size_t bytes);
  /// Missing cells are empty.
  void add_row(std::span<const std::string_view> cells);
  void set_cell(std::size_t row, std::size_t column, std::string_view text);
  void remove_row(std::size_t row);
  void clear();

 private:
  void check(std::size_t row, std::size_t column) const;
  /// Appends the cells to the buffer; the result is where they start.
  std::size_t store(std::span<const std::string_view> cells, std::span<std::uint32_t> lengths);

  std::size_t columns_;
  std::string buffer_;
  std::vector<std::size_t> starts_;     // one per row
  std::vector<std::uint32_t> lengths_;  // one per cell, row by row
};

}  // namespace quenda

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/fault.h"

namespace quenda {

/// Rows of texts in one buffer: a million rows are three allocations, and reading a cell copies
/// nothing. The cells of a row lie one ";" apart, so that a row can be read as one line, too. Views
/// into the table are good until it is changed.
class FlatTable {
 public:
  explicit FlatTable(std::size_t columns) : columns_(columns) {}

  [[nodiscard]] std::size_t columns() const { return columns_; }
  [[nodiscard]] std::size_t rows() const { return starts_.size(); }
  /// Row and column from 0; fault 9 beyond the end.
  [[nodiscard]] std::string_view cell(std::size_t row, std::size_t column) const;
  /// What the row was made of, as it was told when the row was added; it stays with the row while
  /// others go. Fault 9 beyond the end.
  [[nodiscard]] std::uint32_t origin(std::size_t row) const;
  /// The row's cells with ";" between them; fault 9 beyond the end.
  [[nodiscard]] std::string_view line(std::size_t row) const;
  void reserve(std::size_t rows, std::size_t bytes);
  /// Makes room for what is to come, once a part of the source has been done: as if the rest gave
  /// as much. Room that is not used costs next to nothing.
  void expect_the_rest(std::size_t done, std::size_t total);
  /// Missing cells are empty.
  void add_row(std::span<const std::string_view> cells, std::uint32_t origin = 0);
  /// Where a row of so many bytes at most can be written, its cells one byte apart, which
  /// `add_written_row` fills. Good until the table is changed.
  [[nodiscard]] char* room_for_row(std::size_t most_bytes);
  /// Adds the row that was written there, by the sizes of its cells.
  void add_written_row(std::span<const std::size_t> sizes, std::uint32_t origin);
  void set_cell(std::size_t row, std::size_t column, std::string_view text);
  void remove_row(std::size_t row);
  void clear();

  /// Keeps the rows for which `keep(row, position)` is true, in place and in one pass; the others
  /// go. `keep` gets each row's number, from the first to the last, and the place that the row
  /// would have; the rows before that place are the ones kept so far. Only for a table that rows
  /// were added to and nothing else.
  template <class Keep>
  void keep_rows(Keep keep);
  /// The same where `rewrite(cells)` may also narrow the cells or move them forward: each cell it
  /// leaves behind has to be a part of the row's line, and one character at least has to lie
  /// between one and the next. What a row no longer has stays in the buffer, as do rows that went:
  /// to close the gaps would cost more than they do.
  template <class Rewrite>
  void rewrite_rows(Rewrite rewrite);
  /// Whether a cell of the rows that were added has a ";" inside, so that a row's line does not
  /// tell its cells. Only for a table that rows were added to and kept in, and nothing else.
  [[nodiscard]] bool has_separators_inside() const;
  /// False when no row has the text; true also for one that rows had which are gone, or that goes
  /// over from one row to the next.
  [[nodiscard]] bool may_have(std::string_view text) const {
    return std::string_view(buffer_).substr(0, used_).find(text) != std::string_view::npos;
  }
  /// Puts one character for another in all cells. Neither may be ";".
  void replace(char from, char to);

 private:
  void check(std::size_t row, std::size_t column) const;
  /// Appends the cells to the buffer; the result is where they start.
  std::size_t store(std::span<const std::string_view> cells, std::span<std::uint32_t> lengths);
  [[nodiscard]] std::span<std::uint32_t> lengths_of(std::size_t row) {
    return std::span(lengths_).subspan(row * columns_, columns_);
  }
  [[nodiscard]] std::size_t size_of(std::size_t row) const;
  /// Whether cells that are parts of the row's line are those that the row has.
  [[nodiscard]] bool has_cells(std::size_t row, std::span<const std::string_view> cells) const;
  /// Writes cells that are parts of the row's line as its line.
  void rewrite_row(std::size_t row, std::span<const std::string_view> cells);
  /// Lets an earlier place have the row.
  void move_row(std::size_t row, std::size_t place);
  void cut(std::size_t rows);

  std::size_t columns_;
  std::string buffer_;                  // with room behind what is used of it
  std::size_t used_ = 0;                // bytes
  std::size_t added_ = 0;               // rows since the table was empty
  std::vector<std::size_t> starts_;     // one per row
  std::vector<std::uint32_t> origins_;  // one per row
  std::vector<std::uint32_t> lengths_;  // one per cell, row by row
};

template <class Keep>
void FlatTable::keep_rows(Keep keep) {
  std::size_t kept = 0;
  for (std::size_t row = 0; row < rows(); ++row) {
    if (keep(row, kept)) move_row(row, kept++);
  }
  cut(kept);
}

template <class Rewrite>
void FlatTable::rewrite_rows(Rewrite rewrite) {
  std::size_t kept = 0;
  std::vector<std::string_view> cells(columns_);
  for (std::size_t row = 0; row < rows(); ++row) {
    const char* start = buffer_.data() + starts_[row];
    for (std::size_t i = 0; i < columns_; ++i) {
      const std::size_t size = lengths_[row * columns_ + i];
      cells[i] = {start, size};
      start += size + 1;
    }
    if (!rewrite(std::span(cells))) continue;
    if (!has_cells(row, cells)) rewrite_row(row, cells);
    move_row(row, kept++);
  }
  cut(kept);
}

inline bool FlatTable::has_cells(std::size_t row, std::span<const std::string_view> cells) const {
  const char* start = buffer_.data() + starts_[row];
  const std::uint32_t* length = &lengths_[row * columns_];
  for (const std::string_view cell : cells) {
    if (cell.data() != start || cell.size() != *length) return false;
    start += *length++ + 1;
  }
  return true;
}

inline void FlatTable::move_row(std::size_t row, std::size_t place) {
  if (place == row) return;
  starts_[place] = starts_[row];
  origins_[place] = origins_[row];
  std::copy_n(&lengths_[row * columns_], columns_, &lengths_[place * columns_]);
}

inline std::size_t FlatTable::size_of(std::size_t row) const {
  std::size_t size = columns_ - 1;
  const std::uint32_t* const length = &lengths_[row * columns_];
  for (std::size_t i = 0; i < columns_; ++i) size += length[i];
  return size;
}

inline void FlatTable::check(std::size_t row, std::size_t column) const {
  if (row >= rows() || column >= columns_) raise_fault(kFaultIndexRange);
}

inline std::string_view FlatTable::line(std::size_t row) const {
  check(row, 0);
  return {buffer_.data() + starts_[row], size_of(row)};
}

inline std::string_view FlatTable::cell(std::size_t row, std::size_t column) const {
  check(row, column);
  std::size_t start = starts_[row] + column;
  const std::uint32_t* const length = lengths_.data() + row * columns_;
  for (std::size_t i = 0; i < column; ++i) start += length[i];
  return {buffer_.data() + start, length[column]};
}

}  // namespace quenda

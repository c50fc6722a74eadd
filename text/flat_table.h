#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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
  /// Missing cells are empty.
  void add_row(std::span<const std::string_view> cells, std::uint32_t origin = 0);
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
  /// between one and the next.
  template <class Rewrite>
  void rewrite_rows(Rewrite rewrite);
  /// Whether a cell has a ";" inside, so that a row's line does not tell its cells. Only for a
  /// table that rows were added to, kept in and rewritten, and nothing else.
  [[nodiscard]] bool has_separators_inside() const;
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
  /// Lets the place have the row's text and cells. What is packed never overtakes what is read.
  void pack(std::size_t row, std::size_t place, std::size_t& written);
  void pack(std::span<const std::string_view> cells, std::size_t row, std::size_t place,
            std::size_t& written);
  void cut(std::size_t rows, std::size_t bytes);

  std::size_t columns_;
  std::string buffer_;
  std::vector<std::size_t> starts_;     // one per row
  std::vector<std::uint32_t> origins_;  // one per row
  std::vector<std::uint32_t> lengths_;  // one per cell, row by row
};

template <class Keep>
void FlatTable::keep_rows(Keep keep) {
  std::size_t kept = 0;
  std::size_t written = 0;
  for (std::size_t row = 0; row < rows(); ++row) {
    if (keep(row, kept)) pack(row, kept++, written);
  }
  cut(kept, written);
}

template <class Rewrite>
void FlatTable::rewrite_rows(Rewrite rewrite) {
  std::size_t kept = 0;
  std::size_t written = 0;
  std::vector<std::string_view> before(columns_);
  std::vector<std::string_view> cells(columns_);
  const auto is_same = [](std::string_view a, std::string_view b) {
    return a.data() == b.data() && a.size() == b.size();
  };
  for (std::size_t row = 0; row < rows(); ++row) {
    const char* start = buffer_.data() + starts_[row];
    for (std::size_t i = 0; i < columns_; ++i) {
      before[i] = {start, lengths_[row * columns_ + i]};
      start += before[i].size() + 1;
    }
    std::copy(before.begin(), before.end(), cells.begin());
    if (!rewrite(std::span(cells))) continue;
    if (std::equal(cells.begin(), cells.end(), before.begin(), is_same)) {
      pack(row, kept++, written);
    } else {
      pack(cells, row, kept++, written);
    }
  }
  cut(kept, written);
}

}  // namespace quenda

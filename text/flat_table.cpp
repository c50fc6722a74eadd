#include "text/flat_table.h"

#include <limits>

#include "text/fault.h"

namespace quenda {

void FlatTable::check(std::size_t row, std::size_t column) const {
  if (row >= rows() || column >= columns_) raise_fault(kFaultIndexRange);
}

std::string_view FlatTable::cell(std::size_t row, std::size_t column) const {
  check(row, column);
  std::size_t start = starts_[row];
  const std::uint32_t* const length = &lengths_[row * columns_];
  for (std::size_t i = 0; i < column; ++i) start += length[i];
  return std::string_view(buffer_).substr(start, length[column]);
}

void FlatTable::reserve(std::size_t rows, std::size_t bytes) {
  starts_.reserve(rows);
  lengths_.reserve(rows * columns_);
  buffer_.reserve(bytes);
}

std::size_t FlatTable::store(std::span<const std::string_view> cells,
                             std::span<std::uint32_t> lengths) {
  const std::size_t start = buffer_.size();
  for (std::size_t i = 0; i < columns_; ++i) {
    const std::string_view text = i < cells.size() ? cells[i] : std::string_view();
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) raise_fault(kFaultOutOfMemory);
    buffer_ += text;
    lengths[i] = static_cast<std::uint32_t>(text.size());
  }
  return start;
}

void FlatTable::add_row(std::span<const std::string_view> cells) {
  const std::size_t first = lengths_.size();
  lengths_.resize(first + columns_);
  starts_.push_back(store(cells, std::span(lengths_).subspan(first, columns_)));
}

void FlatTable::set_cell(std::size_t row, std::size_t column, std::string_view text) {
  check(row, column);
  std::vector<std::string> kept;
  for (std::size_t i = 0; i < columns_; ++i) kept.emplace_back(i == column ? text : cell(row, i));
  const std::vector<std::string_view> cells(kept.begin(), kept.end());
  starts_[row] = store(cells, std::span(lengths_).subspan(row * columns_, columns_));
}

void FlatTable::remove_row(std::size_t row) {
  check(row, 0);
  using Offset = std::ptrdiff_t;
  starts_.erase(starts_.begin() + static_cast<Offset>(row));
  const auto first = lengths_.begin() + static_cast<Offset>(row * columns_);
  lengths_.erase(first, first + static_cast<Offset>(columns_));
}

void FlatTable::clear() {
  buffer_.clear();
  starts_.clear();
  lengths_.clear();
}

}  // namespace quenda

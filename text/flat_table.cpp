#include "text/flat_table.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr char kBetweenCells = ';';

}  // namespace

void FlatTable::check(std::size_t row, std::size_t column) const {
  if (row >= rows() || column >= columns_) raise_fault(kFaultIndexRange);
}

std::string_view FlatTable::cell(std::size_t row, std::size_t column) const {
  check(row, column);
  std::size_t start = starts_[row] + column;
  const std::uint32_t* const length = lengths_.data() + row * columns_;
  for (std::size_t i = 0; i < column; ++i) start += length[i];
  return {buffer_.data() + start, length[column]};
}

std::size_t FlatTable::size_of(std::size_t row) const {
  std::size_t size = columns_ - 1;
  const std::uint32_t* const length = &lengths_[row * columns_];
  for (std::size_t i = 0; i < columns_; ++i) size += length[i];
  return size;
}

std::string_view FlatTable::line(std::size_t row) const {
  check(row, 0);
  return {buffer_.data() + starts_[row], size_of(row)};
}

std::uint32_t FlatTable::origin(std::size_t row) const {
  check(row, 0);
  return origins_[row];
}

void FlatTable::reserve(std::size_t rows, std::size_t bytes) {
  starts_.reserve(rows);
  origins_.reserve(rows);
  lengths_.reserve(rows * columns_);
  buffer_.reserve(bytes);
}

std::size_t FlatTable::store(std::span<const std::string_view> cells,
                             std::span<std::uint32_t> lengths) {
  const std::size_t start = buffer_.size();
  std::size_t size = columns_ - 1;
  for (const std::string_view cell : cells) size += cell.size();
  buffer_.resize(start + size, kBetweenCells);
  char* to = buffer_.data() + start;
  for (std::size_t i = 0; i < columns_; ++i) {
    const std::string_view text = i < cells.size() ? cells[i] : std::string_view();
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) raise_fault(kFaultOutOfMemory);
    to = std::copy(text.begin(), text.end(), to) + 1;
    lengths[i] = static_cast<std::uint32_t>(text.size());
  }
  return start;
}

void FlatTable::add_row(std::span<const std::string_view> cells, std::uint32_t origin) {
  lengths_.resize(lengths_.size() + columns_);
  starts_.push_back(store(cells, std::span(lengths_).last(columns_)));
  origins_.push_back(origin);
}

void FlatTable::set_cell(std::size_t row, std::size_t column, std::string_view text) {
  check(row, column);
  std::vector<std::string> kept;
  for (std::size_t i = 0; i < columns_; ++i) kept.emplace_back(i == column ? text : cell(row, i));
  const std::vector<std::string_view> cells(kept.begin(), kept.end());
  starts_[row] = store(cells, lengths_of(row));
}

void FlatTable::remove_row(std::size_t row) {
  check(row, 0);
  using Offset = std::ptrdiff_t;
  starts_.erase(starts_.begin() + static_cast<Offset>(row));
  origins_.erase(origins_.begin() + static_cast<Offset>(row));
  const auto first = lengths_.begin() + static_cast<Offset>(row * columns_);
  lengths_.erase(first, first + static_cast<Offset>(columns_));
}

void FlatTable::clear() { cut(0, 0); }

bool FlatTable::has_separators_inside() const {
  return count_of(buffer_, kBetweenCells) != rows() * (columns_ - 1);
}

void FlatTable::replace(char from, char to) {
  for (auto at = buffer_.find(from); at != buffer_.npos; at = buffer_.find(from, at + 1)) {
    buffer_[at] = to;
  }
}

void FlatTable::pack(std::size_t row, std::size_t place, std::size_t& written) {
  const std::size_t size = size_of(row);
  if (starts_[row] != written) {
    std::memmove(buffer_.data() + written, buffer_.data() + starts_[row], size);
  }
  if (place != row) std::copy_n(&lengths_[row * columns_], columns_, &lengths_[place * columns_]);
  starts_[place] = written;
  origins_[place] = origins_[row];
  written += size;
}

void FlatTable::pack(std::span<const std::string_view> cells, std::size_t row, std::size_t place,
                     std::size_t& written) {
  starts_[place] = written;
  origins_[place] = origins_[row];
  char* to = buffer_.data() + written;
  std::uint32_t* length = &lengths_[place * columns_];
  for (const std::string_view cell : cells) {
    if (length != &lengths_[place * columns_]) *to++ = kBetweenCells;
    if (!cell.empty()) std::memmove(to, cell.data(), cell.size());
    to += cell.size();
    *length++ = static_cast<std::uint32_t>(cell.size());
  }
  written = static_cast<std::size_t>(to - buffer_.data());
}

void FlatTable::cut(std::size_t rows, std::size_t bytes) {
  starts_.resize(rows);
  origins_.resize(rows);
  lengths_.resize(rows * columns_);
  buffer_.resize(bytes);
}

}  // namespace quenda

#include "text/flat_table.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "text/text.h"

namespace quenda {
namespace {

constexpr char kBetweenCells = ';';
/// The buffer is enlarged by so much at a time: what it is filled with at first is overwritten
/// while it is still in the cache.
constexpr std::size_t kRoom = 64UL * 1024;

}  // namespace

std::uint32_t FlatTable::origin(std::size_t row) const {
  check(row, 0);
  return origins_[row];
}

void FlatTable::reserve(std::size_t rows, std::size_t bytes) {
  starts_.reserve(rows);
  origins_.reserve(rows);
  lengths_.reserve(rows * columns_);
  buffer_.reserve(bytes + kRoom);
}

void FlatTable::expect_the_rest(std::size_t done, std::size_t total) {
  const auto expected = [&](std::size_t until_now) {
    const double all =
        static_cast<double>(until_now) / static_cast<double>(done) * static_cast<double>(total);
    constexpr double kMargin = 1.125;
    return static_cast<std::size_t>(all * kMargin) + 1;
  };
  reserve(expected(rows()), expected(used_));
}

char* FlatTable::room_for_row(std::size_t most_bytes) {
  // One more, for what would follow the last cell.
  if (buffer_.size() - used_ <= most_bytes) buffer_.resize(used_ + most_bytes + kRoom);
  return buffer_.data() + used_;
}

std::size_t FlatTable::store(std::span<const std::string_view> cells,
                             std::span<std::uint32_t> lengths) {
  const std::size_t start = used_;
  std::size_t size = columns_ - 1;
  for (const std::string_view cell : cells) size += cell.size();
  char* to = room_for_row(size);
  for (std::size_t i = 0; i < columns_; ++i) {
    if (i > 0) *to++ = kBetweenCells;
    const std::string_view text = i < cells.size() ? cells[i] : std::string_view();
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) raise_fault(kFaultOutOfMemory);
    to = std::copy(text.begin(), text.end(), to);
    lengths[i] = static_cast<std::uint32_t>(text.size());
  }
  used_ += size;
  return start;
}

void FlatTable::add_row(std::span<const std::string_view> cells, std::uint32_t origin) {
  lengths_.resize(lengths_.size() + columns_);
  starts_.push_back(store(cells, std::span(lengths_).last(columns_)));
  origins_.push_back(origin);
  ++added_;
}

void FlatTable::add_written_row(std::span<const std::size_t> sizes, std::uint32_t origin) {
  starts_.push_back(used_);
  origins_.push_back(origin);
  std::size_t end = used_;
  for (const std::size_t size : sizes) {
    if (size > std::numeric_limits<std::uint32_t>::max()) raise_fault(kFaultOutOfMemory);
    lengths_.push_back(static_cast<std::uint32_t>(size));
    end += size;
    buffer_[end++] = kBetweenCells;
  }
  used_ = end - 1;
  ++added_;
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

void FlatTable::clear() {
  cut(0);
  used_ = 0;
  added_ = 0;
}

bool FlatTable::has_separators_inside() const {
  return count_of(std::string_view(buffer_).substr(0, used_), kBetweenCells) !=
         added_ * (columns_ - 1);
}

void FlatTable::replace(char from, char to) {
  for (auto at = buffer_.find(from); at < used_; at = buffer_.find(from, at + 1)) {
    buffer_[at] = to;
  }
}

void FlatTable::rewrite_row(std::size_t row, std::span<const std::string_view> cells) {
  char* to = buffer_.data() + starts_[row];
  std::uint32_t* length = &lengths_[row * columns_];
  for (std::size_t i = 0; i < columns_; ++i) {
    if (i > 0) *to++ = kBetweenCells;
    if (!cells[i].empty()) std::memmove(to, cells[i].data(), cells[i].size());
    to += cells[i].size();
    length[i] = static_cast<std::uint32_t>(cells[i].size());
  }
}

void FlatTable::cut(std::size_t rows) {
  starts_.resize(rows);
  origins_.resize(rows);
  lengths_.resize(rows * columns_);
}

}  // namespace quenda

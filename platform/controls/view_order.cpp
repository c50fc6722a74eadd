#include "platform/controls/view_order.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string>
#include <string_view>

#include "text/text.h"

namespace quenda {
namespace {

/// What the small letters of Windows-1252 from 0xDF on are sorted as.
constexpr std::string_view kSortedAs = "saaaaaaaceeeeiiiidnooooo\xF7ouuuuyty";
static_assert(kSortedAs.size() == 0x100 - 0xDF);

std::string sort_key(std::string_view text) {
  std::string key = to_lower(text);
  for (char& c : key) {
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0xDF) c = kSortedAs[code - 0xDFU];
  }
  return key;
}

}  // namespace

void ViewOrder::reset() {
  key_.reset();
  rows_.clear();
}

void ViewOrder::sort_by(std::size_t column, std::size_t rows,
                        const std::function<std::string(std::size_t)>& text) {
  const bool again = key_ && key_->column == column;
  if (again && key_->descending) return reset();
  key_ = Key{column, again};
  sort_again(rows, text);
}

void ViewOrder::sort_again(std::size_t rows, const std::function<std::string(std::size_t)>& text) {
  if (!key_) return;
  std::vector<std::string> keys(rows);
  for (std::size_t row = 0; row < keys.size(); ++row) keys[row] = sort_key(text(row));
  rows_.resize(rows);
  std::iota(rows_.begin(), rows_.end(), std::size_t{0});
  std::stable_sort(rows_.begin(), rows_.end(), [&](std::size_t a, std::size_t b) {
    return key_->descending ? keys[b] < keys[a] : keys[a] < keys[b];
  });
}

void ViewOrder::row_added(std::size_t row) {
  if (key_) rows_.push_back(row);
}

void ViewOrder::row_removed(std::size_t row) {
  std::erase(rows_, row);
  for (std::size_t& other : rows_) {
    if (other > row) --other;
  }
}

std::size_t ViewOrder::row_at(std::size_t position) const {
  return position < rows_.size() ? rows_[position] : position;
}

std::size_t ViewOrder::position_of(std::size_t row) const {
  const auto found = std::find(rows_.begin(), rows_.end(), row);
  return found == rows_.end() ? row : static_cast<std::size_t>(found - rows_.begin());
}

}  // namespace quenda

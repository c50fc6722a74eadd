#include "platform/controls/column_fit.h"

#include <algorithm>
#include <cstdint>

namespace quenda {

std::vector<std::size_t> positions_to_fit(std::size_t rows, std::size_t first_seen,
                                          std::size_t seen) {
  constexpr std::size_t kEnough = 4000;
  std::vector<std::size_t> positions;
  const std::size_t step = rows / kEnough + 1;
  for (std::size_t at = 0; at < rows; at += step) positions.push_back(at);
  if (step == 1) return positions;
  const std::size_t end = std::min(rows, first_seen + seen);
  for (std::size_t at = first_seen; at < end; ++at) positions.push_back(at);
  return positions;
}

std::vector<int> widths_in(const std::vector<ColumnWidth>& columns, int room) {
  std::vector<int> widths;
  int sum = 0;
  int shared = 0;  // by design
  for (const ColumnWidth& column : columns) {
    widths.push_back(column.chosen > 0 ? column.chosen : column.designed);
    sum += widths.back();
    if (column.chosen == 0) shared += column.designed;
  }
  if (sum == 0 || sum >= room) return widths;
  if (shared == 0) {
    widths.back() += room - sum;
    return widths;
  }
  // Edges, not widths, are rounded: a sum that is a pixel too large brings a scroll bar.
  const std::int64_t shared_room = room - sum + shared;
  std::int64_t designed = 0;
  int edge = 0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].chosen > 0) continue;
    designed += columns[i].designed;
    widths[i] = static_cast<int>((designed * shared_room + shared / 2) / shared) - edge;
    edge += widths[i];
  }
  return widths;
}

}  // namespace quenda

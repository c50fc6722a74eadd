#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>

#include "text/flat_table.h"

namespace quenda {

/// Which rows the user has taken out of the final list, where that cannot be told from the rows
/// that are left: several rows can come from one cell, and share their origin.
class RemovedRows {
 public:
  void clear() { removed_.clear(); }
  /// To be called before the row goes.
  void note(const FlatTable& list, std::size_t row);
  /// Whether the user has taken out the row that was the nth of its origin, counted from 0.
  [[nodiscard]] bool has(std::uint32_t origin, std::size_t nth) const {
    return !removed_.empty() && removed_.contains({origin, nth});
  }

 private:
  std::set<std::pair<std::uint32_t, std::size_t>> removed_;
};

}  // namespace quenda

#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "text/flat_table.h"

namespace quenda {

/// A row that was dropped because an earlier one has the same line.
struct RepeatedLine {
  std::uint32_t row = 0;    // its number before any row was dropped
  std::uint32_t first = 0;  // origin of the row that stays
};

/// Drops rows whose line is empty or there already, letter for letter. The first one stays. Returns
/// the repeats in their order. `pause` is called every few thousand rows.
std::vector<RepeatedLine> remove_repeated_lines(
    FlatTable& rows, const std::function<void()>& pause = [] {});

}  // namespace quenda

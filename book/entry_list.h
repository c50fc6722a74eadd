#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "text/flat_table.h"
#include "text/text_rows.h"

// From entry lines ("name;number;address", "|" standing for a comma) to the rows of the final list.
namespace quenda {

/// Columns of the final list.
enum EntryColumn : std::size_t { kEntryName, kEntryNumber, kEntryAddress, kEntryColumns };

/// Whether a number is long enough (8 characters) and numeric, so that an entry can have it.
bool number_importable(std::string_view number);

/// The rows that the entry lines give. A line is left out when it has no ";", when its number is
/// not importable, and, where short names are suppressed, when its name has fewer than 3
/// characters. `on_step` is told after each line.
FlatTable entry_rows(const TextRows& lines, bool suppress_short_names,
                     const std::function<void(std::size_t done, std::size_t total)>& on_step);

}  // namespace quenda

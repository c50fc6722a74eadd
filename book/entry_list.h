#pragma once

#include <cstddef>
#include <string_view>

#include "text/flat_table.h"
#include "text/steps.h"

// From the rows that the sources give (name, number, address; "|" standing for a comma) to the rows
// of the final list.
namespace quenda {

/// Columns of the final list, and of the rows that it is made of.
enum EntryColumn : std::size_t { kEntryName, kEntryNumber, kEntryAddress, kEntryColumns };

/// Whether a number is long enough (8 characters) and numeric, so that an entry can have it.
bool number_importable(std::string_view number);

/// Whether a name is below 3 characters, so that it is left out where short names are suppressed.
bool name_too_short(std::string_view name);

/// The rows of the final list. A row is left out when its number is not importable, and, where
/// short names are suppressed, when its name has fewer than 3 characters. A ";" inside a cell,
/// which a file with another delimiter can have, shifts the cells: a row counts as the line
/// "name;number;address", of which the first three fields are taken. `on_step` is told of each
/// row.
FlatTable entry_rows(FlatTable rows, bool suppress_short_names, const OnStep& on_step);

/// The same for the callers of a call log, of whom only the number's being numeric is asked. A ";"
/// inside a name shifts the cells here, too, and such a row has no number.
FlatTable caller_rows(FlatTable rows);

}  // namespace quenda

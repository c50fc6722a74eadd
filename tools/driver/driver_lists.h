#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/driver/driver_window.h"

// What lists, tables and the status bar show, and choosing in them. Positions count from 0.
namespace quenda {

using TableRow = std::vector<std::string>;

/// The entries of a list box.
std::vector<std::string> entries_of(const Window& list);
/// Those of them that are selected.
std::vector<std::string> selected_in(const Window& list);
/// Clicks on an entry of a list box until it is selected.
void choose(const Window& list, std::string_view entry);

int row_count(const Window& table);
/// The first rows of a table, at most as many as asked for.
std::vector<TableRow> rows_of(const Window& table, int most = 100);
/// The selected row, -1 for none.
int selected_row(const Window& table);
/// A point inside a row of a table, for a click.
POINT point_in_row(const Window& table, int row);
/// Clicks on a row and waits until it is selected.
void select_row(const Window& table, int row);

/// A panel of the status bar, from 1.
std::string panel_of(const Window& window, int panel);

}  // namespace quenda

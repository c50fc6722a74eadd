#pragma once

#include <cstddef>
#include <vector>

// How wide the columns of a report list are. Widths are in pixels.
namespace quenda {

/// The positions of the rows whose texts tell how wide a column has to be for its contents: all of
/// a short list; of a long one those in view and some thousands spread over it, so that a million
/// rows take no longer.
std::vector<std::size_t> positions_to_fit(std::size_t rows, std::size_t first_seen,
                                          std::size_t seen);

struct ColumnWidth {
  int designed = 0;
  int chosen = 0;  // by the user, 0 for none
};

/// The widths at which the columns are shown: those asked for, and what these leave of the room is
/// shared by the columns whose width nobody has chosen, or goes to the last one.
std::vector<int> widths_in(const std::vector<ColumnWidth>& columns, int room);

}  // namespace quenda

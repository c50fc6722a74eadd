#include "book/removed_rows.h"

namespace quenda {

void RemovedRows::note(const FlatTable& list, std::size_t row) {
  const std::uint32_t origin = list.origin(row);
  std::size_t before = 0;
  while (before < row && list.origin(row - before - 1) == origin) ++before;
  // That many are left before it; those that went before count, too.
  std::size_t nth = 0;
  for (;; ++nth) {
    if (has(origin, nth)) continue;
    if (before-- == 0) break;
  }
  removed_.emplace(origin, nth);
}

}  // namespace quenda

#include "text/repeated_lines.h"

#include <string_view>

#include "text/row_index.h"
#include "text/short_hash.h"

namespace quenda {

std::vector<RepeatedLine> remove_repeated_lines(FlatTable& rows,
                                                const std::function<void()>& pause) {
  constexpr std::size_t kAhead = 12;
  constexpr std::size_t kRowsPerPause = 4096;
  std::vector<std::uint32_t> hashes(rows.rows());
  for (std::size_t i = 0; i < hashes.size(); ++i) {
    if (i % kRowsPerPause == 0) pause();
    hashes[i] = short_hash_of(rows.line(i));
  }
  std::vector<RepeatedLine> repeated;
  RowIndex kept(rows.rows());
  rows.keep_rows([&](std::size_t row, std::size_t place) {
    if (row % kRowsPerPause == 0) pause();
    if (row + kAhead < hashes.size()) kept.announce(hashes[row + kAhead]);
    const std::string_view line = rows.line(row);
    if (line.empty()) return false;
    const auto same = [&](std::uint32_t other) { return rows.line(other) == line; };
    const std::uint32_t first =
        kept.find_or_add(hashes[row], static_cast<std::uint32_t>(place), same);
    if (first == RowIndex::kNone) return true;
    repeated.push_back({static_cast<std::uint32_t>(row), rows.origin(first)});
    return false;
  });
  return repeated;
}

}  // namespace quenda

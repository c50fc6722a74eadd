#include "text/tail_text.h"

#include <algorithm>

namespace quenda {

std::uint64_t TailPieces::size() const {
  std::uint64_t size = 0;
  for (const std::string_view piece : pieces_) size += piece.size();
  return size;
}

void TailPieces::tell(std::uint64_t from, std::uint64_t to, const Take& take) const {
  for (const std::string_view piece : pieces_) {
    if (to == 0) return;
    const std::uint64_t start = std::min<std::uint64_t>(from, piece.size());
    const std::uint64_t end = std::min<std::uint64_t>(to, piece.size());
    if (start < end) take(piece.substr(start, end - start));
    from -= start;
    to -= end;
  }
}

}  // namespace quenda

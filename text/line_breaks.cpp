#include "text/line_breaks.h"

#include <algorithm>

#include "text/character_counts.h"

namespace quenda {

LineBreaks count_line_breaks(std::string_view text) {
  constexpr std::size_t kSize = ByteBlock::kSize;
  MatchCount cr;
  MatchCount lf;
  MatchCount pairs;
  std::size_t at = 0;
  // A block is looked at together with the byte behind it.
  while (text.size() - at > kSize) {
    const std::size_t blocks = std::min((text.size() - at - 1) / kSize, MatchCount::kMostBlocks);
    for (const std::size_t end = at + blocks * kSize; at < end; at += kSize) {
      const ByteBlock block = ByteBlock::load(text.data() + at);
      const ByteBlock is_cr = block.equal_to('\r');
      cr.add(is_cr);
      lf.add(block.equal_to('\n'));
      pairs.add(is_cr & ByteBlock::load(text.data() + at + 1).equal_to('\n'));
    }
    for (MatchCount* const count : {&cr, &lf, &pairs}) count->settle();
  }
  LineBreaks breaks{cr.total(), lf.total(), pairs.total()};
  for (; at < text.size(); ++at) {
    if (text[at] == '\n') ++breaks.lf;
    if (text[at] != '\r') continue;
    ++breaks.cr;
    if (text.substr(at + 1).starts_with('\n')) ++breaks.pairs;
  }
  return breaks;
}

}  // namespace quenda

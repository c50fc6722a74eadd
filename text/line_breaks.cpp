#include "text/line_breaks.h"

#include "text/text.h"

namespace quenda {

LineBreaks count_line_breaks(std::string_view text) {
  // Block by block, so that the counts read each part of the text while it is in the cache. A pair
  // can begin with the last character of a block.
  constexpr std::size_t kBlock = 32UL * 1024;
  LineBreaks breaks;
  for (std::size_t at = 0; at < text.size(); at += kBlock) {
    const std::string_view block = text.substr(at, kBlock);
    breaks.cr += count_of(block, '\r');
    breaks.lf += count_of(block, '\n');
    breaks.pairs += count_line_ends(text.substr(at, kBlock + 1));
  }
  return breaks;
}

}  // namespace quenda

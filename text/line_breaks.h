#pragma once

#include <cstddef>
#include <string_view>

namespace quenda {

/// The characters of a text that line breaks are made of.
struct LineBreaks {
  std::size_t cr = 0;
  std::size_t lf = 0;
  std::size_t pairs = 0;  // CR LF, whose halves also count by themselves

  [[nodiscard]] bool only_pairs() const { return cr == pairs && lf == pairs; }
};

/// Counts all of them in one pass over the text.
LineBreaks count_line_breaks(std::string_view text);

}  // namespace quenda

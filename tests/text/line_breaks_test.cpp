#include "text/line_breaks.h"

#include <gtest/gtest.h>

#include <string>

namespace quenda {
namespace {

TEST(LineBreaks, CountsAPairAtEveryPlaceOnce) {
  const std::string text(70000, 'a');
  for (const std::size_t at :
       {0UL, 15UL, 16UL, 4079UL, 4080UL, 65535UL, 69983UL, 69984UL, 69998UL}) {
    std::string changed = text;
    changed.replace(at, 2, "\r\n");
    const LineBreaks breaks = count_line_breaks(changed);
    EXPECT_EQ(breaks.pairs, 1U) << at;
    EXPECT_TRUE(breaks.only_pairs()) << at;
  }
}

TEST(LineBreaks, TellsLoneHalvesFromPairs) {
  const LineBreaks breaks = count_line_breaks("a\r\nb\nc\rd\n\re\r");
  EXPECT_EQ(breaks.cr, 4U);
  EXPECT_EQ(breaks.lf, 3U);
  EXPECT_EQ(breaks.pairs, 1U);
  EXPECT_FALSE(breaks.only_pairs());
}

}  // namespace
}  // namespace quenda

#include "text/character_counts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace quenda {
namespace {

TEST(CountEach, CountsAllInTextsOfAnySize) {
  // More than a byte can count, in every place of a block.
  std::string text;
  for (int i = 0; i < 9000; ++i) text += i % 3 == 0 ? ";;" : i % 7 == 0 ? "\r" : "x\xFF";
  for (const std::size_t size : {0U, 1U, 15U, 16U, 17U, 4079U, 4080U, 4081U, 27000U}) {
    const std::string part = text.substr(0, size);
    const auto counted = [&](char c) {
      return static_cast<std::size_t>(std::count(part.begin(), part.end(), c));
    };
    const auto [semicolons, breaks, high] = count_each(part, ';', '\r', '\xFF');
    EXPECT_EQ(semicolons, counted(';')) << size;
    EXPECT_EQ(breaks, counted('\r')) << size;
    EXPECT_EQ(high, counted('\xFF')) << size;
  }
}

}  // namespace
}  // namespace quenda

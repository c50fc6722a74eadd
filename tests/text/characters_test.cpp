#include "text/characters.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace quenda {
namespace {

TEST(StripCharacters, ReplacesEachCharacterAndJoinsPoints) {
  EXPECT_EQ(strip_characters("0049 (30) 12-34", " -()", ""), "0049301234");
  EXPECT_EQ(strip_characters("a-b/c", "-/", "."), "a.b.c");
  EXPECT_EQ(strip_characters("a--b....c", "-", "."), "a.b.c");
  EXPECT_EQ(strip_characters("..", "x", "y"), ".");
  EXPECT_EQ(strip_characters("", "x", "y"), "");
  EXPECT_EQ(strip_characters("abc", "", "y"), "abc");
}

TEST(StripCharacters, ReplacementIsTextForTheCharactersThatFollow) {
  EXPECT_EQ(strip_characters("a1", "ab", "b-"), "b--1");
}

TEST(CountOccurrences, CountsOverlapsAndTakesLineBreaksByTheirCr) {
  EXPECT_EQ(count_occurrences("aaaa", "aa"), 3U);
  EXPECT_EQ(count_occurrences("a;b;;c", ";"), 3U);
  EXPECT_EQ(count_occurrences("1\r\n2\r3\n", "\r\n"), 2U);
  EXPECT_EQ(count_occurrences("abc", "abcd"), 0U);
  EXPECT_EQ(count_occurrences("abc", ""), 3U);
}

TEST(FilterKey, LetsTheKeysOfItsModeThrough) {
  // Of all keys from 1 to 255 those that come through as they are.
  const std::pair<KeyFilter, std::string> cases[] = {{KeyFilter::kDate, "\b .0123456789"},
                                                     {KeyFilter::kNum, "\b0123456789"},
                                                     {KeyFilter::kNumCR, "\b\r\0330123456789"},
                                                     {KeyFilter::kNumCRwc, "\b\r\033*0123456789?"},
                                                     {KeyFilter::kNumTel, "\b\r\033+0123456789"}};
  for (const auto& [filter, keys] : cases) {
    std::string passed;
    for (std::int16_t key = 1; key < 256; ++key) {
      if (filter_key(key, filter) == key) passed += static_cast<char>(key);
    }
    EXPECT_EQ(passed, keys);
  }
}

TEST(FilterKey, ChangesSeparators) {
  EXPECT_EQ(filter_key(';', KeyFilter::kNoSem), ',');
  EXPECT_EQ(filter_key(',', KeyFilter::kDate), '.');
  EXPECT_EQ(filter_key(0xFC, KeyFilter::kNoSem), 0xFC);
}

}  // namespace
}  // namespace quenda

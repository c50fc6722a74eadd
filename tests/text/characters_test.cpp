#include "text/characters.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "text/view_index.h"

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

std::vector<std::string> without_repeats(const std::vector<std::string>& lines) {
  FlatTable rows(1);
  for (const std::string_view line : lines) rows.add_row({&line, 1});
  remove_repeated_lines(rows);
  std::vector<std::string> result;
  for (std::size_t i = 0; i < rows.rows(); ++i) result.emplace_back(rows.line(i));
  return result;
}

TEST(RemoveRepeatedLines, KeepsTheFirstOfEachInOrder) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(without_repeats({"b", "a", "", "b", "B", "a ", "a"}), (Lines{"b", "a", "B", "a "}));
  EXPECT_EQ(without_repeats({"", ""}), Lines{});
  EXPECT_EQ(without_repeats({}), Lines{});
}

TEST(RemoveRepeatedLines, ComparesWholeLinesWhereverTheirCellsEnd) {
  FlatTable rows(2);
  for (const auto& cells :
       {std::array<std::string_view, 2>{"a;b", "c"}, {"a", "b;c"}, {"a", "b"}}) {
    rows.add_row(cells);
  }
  remove_repeated_lines(rows);
  ASSERT_EQ(rows.rows(), 2U);
  EXPECT_EQ(rows.cell(0, 0), "a;b");
  EXPECT_EQ(rows.cell(1, 1), "b");
}

TEST(RemoveRepeatedLines, FindsRepeatsAmongManyLinesOfAllLengths) {
  std::vector<std::string> lines;
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < 5000; ++i)
      lines.push_back(std::string(static_cast<std::size_t>(i) % 40, 'x') + std::to_string(i));
  }
  const std::vector<std::string> once = without_repeats(lines);
  lines.resize(5000);
  EXPECT_EQ(once, lines);
}

TEST(ViewIndex, GrowsFindsAndReplaces) {
  std::vector<std::string> keys;
  const auto key_of = [&](std::uint32_t row) { return std::string_view(keys[row]); };
  ViewIndex index;
  for (std::uint32_t i = 0; i < 1000; ++i) {
    keys.push_back("key" + std::to_string(i));
    EXPECT_EQ(index.find_or_add(keys.back(), i, key_of), ViewIndex::kNone);
  }
  EXPECT_EQ(index.find("key777", key_of), 777U);
  EXPECT_EQ(index.find("key1000", key_of), ViewIndex::kNone);
  keys.emplace_back("key5");
  index.replace(short_hash_of("key5"), 1000, [&](auto row) { return keys[row] == "key5"; });
  EXPECT_EQ(index.find_or_add("key5", 1, key_of), 1000U);
}

}  // namespace
}  // namespace quenda

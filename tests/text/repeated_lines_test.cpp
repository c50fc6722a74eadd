#include "text/repeated_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/row_index.h"
#include "text/view_index.h"

namespace quenda {
namespace {

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

TEST(RemoveRepeatedLines, TellsWhichRowsRepeatAnother) {
  FlatTable rows(1);
  std::uint32_t origin = 10;
  for (const std::string_view line : {"b", "a", "", "b", "a", "b"})
    rows.add_row({&line, 1}, origin++);
  const std::vector<RepeatedLine> repeated = remove_repeated_lines(rows);
  EXPECT_EQ(rows.rows(), 2U);
  ASSERT_EQ(repeated.size(), 3U);
  EXPECT_EQ(repeated[0].row, 3U);
  EXPECT_EQ(repeated[0].first, 10U);
  EXPECT_EQ(repeated[1].row, 4U);
  EXPECT_EQ(repeated[1].first, 11U);
  EXPECT_EQ(repeated[2].row, 5U);
  EXPECT_EQ(repeated[2].first, 10U);
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

TEST(FlatTable, WrittenRowsAndRewrittenOnesStandAsTheyWere) {
  FlatTable rows(2);
  for (std::size_t i = 0; i < 4; ++i) {
    char* const room = rows.room_for_row(8);
    const std::string_view text = "ab-12;5";
    std::copy(text.begin(), text.end(), room);
    rows.add_written_row(std::array<std::size_t, 2>{2, i + 1}, static_cast<std::uint32_t>(i));
  }
  EXPECT_TRUE(rows.has_separators_inside());
  EXPECT_EQ(rows.line(3), "ab;12;5");
  EXPECT_EQ(rows.line(2), "ab;12;");
  rows.keep_rows([](std::size_t row, std::size_t) { return row != 1; });
  rows.rewrite_rows([](std::span<std::string_view> cells) {
    cells[0] = cells[0].substr(1);
    return cells[1].size() != 3;
  });
  ASSERT_EQ(rows.rows(), 2U);
  EXPECT_EQ(rows.line(0), "b;1");
  EXPECT_EQ(rows.line(1), "b;12;5");
  EXPECT_EQ(rows.origin(1), 3U);
  rows.replace('5', '6');
  EXPECT_EQ(rows.cell(1, 1), "12;6");
}

TEST(ViewIndex, GrowsAndFinds) {
  std::vector<std::string> keys;
  const auto key_of = [&](std::uint32_t row) { return std::string_view(keys[row]); };
  ViewIndex index;
  for (std::uint32_t i = 0; i < 1000; ++i) {
    keys.push_back("key" + std::to_string(i));
    EXPECT_EQ(index.find_or_add(keys.back(), i, key_of), ViewIndex::kNone);
  }
  EXPECT_EQ(index.find_or_add("key5", 1000, key_of), 5U);
  EXPECT_EQ(index.find("key777", key_of), 777U);
  EXPECT_EQ(index.find("key1000", key_of), ViewIndex::kNone);
}

TEST(RowIndex, TellsRowsApartWhoseHashesDoNot) {
  for (const std::uint32_t rows : {1U, 2U, 3U, 64U, 1000U}) {
    RowIndex index(rows);
    // Of five hashes each is one for many texts, and the slots of some have all of their bits.
    const std::array<std::uint32_t, 5> hashes = {0U, 1U, 0xFFFFFFFFU, 0xFFFF0000U, 0x80000001U};
    const auto hash_of = [&](std::uint32_t row) { return hashes.at(row % hashes.size()); };
    for (std::uint32_t row = 0; row < rows; ++row) {
      const auto never = [](std::uint32_t) { return false; };
      ASSERT_EQ(index.find_or_add(hash_of(row), row, never), RowIndex::kNone);
    }
    const auto is = [](std::uint32_t wanted) {
      return [wanted](std::uint32_t row) { return row == wanted; };
    };
    for (std::uint32_t row = 0; row < rows; ++row) {
      ASSERT_EQ(index.find_or_add(hash_of(row), 0, is(row)), row) << rows << " rows";
    }
    if (rows == 1) continue;
    index.replace(hash_of(rows - 1), 0, is(rows - 1));
    EXPECT_EQ(index.find_or_add(hash_of(rows - 1), 0, is(rows - 1)), RowIndex::kNone);
  }
}

}  // namespace
}  // namespace quenda

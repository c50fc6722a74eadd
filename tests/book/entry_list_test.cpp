#include "book/entry_list.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace quenda {
namespace {

using Row = std::array<std::string, kEntryColumns>;

std::vector<Row> rows_of(const std::vector<std::string>& lines, bool suppress_short_names) {
  TextRows text;
  for (const std::string& line : lines) text.add_row(line);
  const FlatTable table = entry_rows(text, suppress_short_names, [](auto, auto) {});
  std::vector<Row> rows;
  for (std::size_t i = 0; i < table.rows(); ++i) {
    rows.push_back({std::string(table.cell(i, 0)), std::string(table.cell(i, 1)),
                    std::string(table.cell(i, 2))});
  }
  return rows;
}

TEST(EntryRows, TurnBarsIntoCommasAndTrimNameAndAddress) {
  EXPECT_EQ(rows_of({" Meier|Hans ;03012345678; Hauptstr. 1|Berlin "}, true),
            (std::vector<Row>{{"Meier,Hans", "03012345678", "Hauptstr. 1,Berlin"}}));
}

TEST(EntryRows, TakeTheFirstThreeFields) {
  EXPECT_EQ(rows_of({"Meier;03012345678;a;b", "Huber;08912345678"}, true),
            (std::vector<Row>{{"Meier", "03012345678", "a"}, {"Huber", "08912345678", ""}}));
}

TEST(EntryRows, LeaveOutWhatHasNoImportableNumber) {
  EXPECT_TRUE(
      rows_of({"Meier", "Meier;1234567;", "Meier;0800PIZZA;", "Meier;;03012345678", ""}, false)
          .empty());
  EXPECT_EQ(rows_of({"Meier;12345678;"}, false).size(), 1U);
}

TEST(EntryRows, ShortNamesPassUnlessSuppressed) {
  const std::vector<std::string> lines = {"Ed;03012345678;", "Eva;03012345679;",
                                          " E ;03012345670;"};
  EXPECT_EQ(rows_of(lines, false).size(), 3U);
  const auto rows = rows_of(lines, true);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0][0], "Eva");
  EXPECT_EQ(rows[1][0], "E") << "the length counts before the blanks are taken off";
}

}  // namespace
}  // namespace quenda

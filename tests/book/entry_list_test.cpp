#include "book/entry_list.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace quenda {
namespace {

using Row = std::array<std::string, kEntryColumns>;

using Rows = std::vector<Row>;

FlatTable table_of(const Rows& rows) {
  FlatTable table(kEntryColumns);
  std::uint32_t origin = 0;
  for (const Row& row : rows) {
    table.add_row(std::array<std::string_view, kEntryColumns>{row[0], row[1], row[2]}, origin++);
  }
  return table;
}

Rows rows_of(const FlatTable& table) {
  Rows rows;
  for (std::size_t i = 0; i < table.rows(); ++i) {
    rows.push_back({std::string(table.cell(i, 0)), std::string(table.cell(i, 1)),
                    std::string(table.cell(i, 2))});
  }
  return rows;
}

Rows listed(const Rows& rows, bool suppress_short_names) {
  return rows_of(entry_rows(table_of(rows), suppress_short_names, [](auto, auto) {}));
}

TEST(EntryRows, TurnBarsIntoCommasAndTrimNameAndAddress) {
  EXPECT_EQ(
      listed(
          {{" Meier|Hans ", "03012345678", " Hauptstr. 1|Berlin "}, {"Huber|", "08912345678", ""}},
          true),
      (Rows{{"Meier,Hans", "03012345678", "Hauptstr. 1,Berlin"}, {"Huber,", "08912345678", ""}}));
}

TEST(EntryRows, SeparatorsInsideCellsShiftTheFields) {
  EXPECT_EQ(listed({{"Meier;03012345678", "08912345678", "a"},
                    {"Meier;Hans", "03012345678", ""},
                    {"Meier", "03012345678", " a ;b"},
                    {"Ende", "03012345670", "x"}},
                   true),
            (Rows{{"Meier", "03012345678", "08912345678"},
                  {"Meier", "03012345678", "a"},
                  {"Ende", "03012345670", "x"}}));
}

TEST(CallerRows, HaveNoNumberWhereTheNameHasASeparator) {
  EXPECT_EQ(rows_of(caller_rows(table_of({{"Meier|H ", "030", ""},
                                          {"Meier;12", "030", ""},
                                          {"Meier;Hans", "030", ""},
                                          {"Huber", "089", ""}}))),
            (Rows{{"Meier|H ", "030", ""}, {"Meier", "", ""}, {"Huber", "089", ""}}));
}

TEST(EntryRows, LeaveOutWhatHasNoImportableNumber) {
  EXPECT_TRUE(
      listed({{"Meier", "1234567", ""}, {"Meier", "0800PIZZA", ""}, {"Meier", "", "03012345678"}},
             false)
          .empty());
  EXPECT_EQ(listed({{"Meier", "12345678", ""}}, false).size(), 1U);
}

TEST(EntryRows, StayTraceableToTheRowsThatTheyWereMadeOf) {
  FlatTable rows = entry_rows(table_of({{"A", "1", ""},
                                        {"Bea", "08912345678", ""},
                                        {"Cid", "x", ""},
                                        {"Dora|E", "03012345678", ""},
                                        {"Fred", "03112345678", ""}}),
                              true, [](auto, auto) {});
  rows.set_cell(1, kEntryName, "Dora, a longer name");
  rows.remove_row(0);
  EXPECT_EQ(rows.origin(0), 3U);
  EXPECT_EQ(rows.origin(1), 4U);
}

TEST(EntryRows, ShortNamesPassUnlessSuppressed) {
  const Rows all = {
      {"Ed", "03012345678", ""}, {"Eva", "03012345679", ""}, {" E ", "03012345670", ""}};
  EXPECT_EQ(listed(all, false).size(), 3U);
  const Rows rows = listed(all, true);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0][0], "Eva");
  EXPECT_EQ(rows[1][0], "E") << "the length counts before the blanks are taken off";
}

}  // namespace
}  // namespace quenda

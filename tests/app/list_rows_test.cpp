#include "app/account/list_rows.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

namespace quenda {
namespace {

TEST(ListRows, FindsTheRowsOfARecordAndHandsOutEachOnce) {
  FlatTable list(1);
  for (const std::uint32_t origin : {entry_origin(1, 1), entry_origin(2, 1), entry_origin(2, 1),
                                     entry_origin(2, 3), entry_origin(5, 1)}) {
    list.add_row(std::array<std::string_view, 1>{"x"}, origin);
  }
  const RemovedRows removed;
  ListRows rows(list, removed);
  rows.begin_record(2);  // the row of record 1 goes by
  EXPECT_TRUE(rows.has(entry_origin(2, 3)));
  EXPECT_FALSE(rows.has(entry_origin(2, 2)));
  EXPECT_EQ(rows.take(entry_origin(2, 1)), 1U);
  EXPECT_EQ(rows.take(entry_origin(2, 1)), 2U);
  EXPECT_EQ(rows.take(entry_origin(2, 1)), std::nullopt);
  EXPECT_EQ(rows.take(entry_origin(2, 3)), 3U);
  rows.begin_record(6);
  EXPECT_EQ(rows.take(entry_origin(6, 1)), std::nullopt);
}

}  // namespace
}  // namespace quenda

// Rules of controls that hold with and without a window.
#include "platform/controls/column_fit.h"
#include "platform/controls/progress_text.h"
#include "platform/controls/splitter.h"
#include "platform/controls/view_order.h"
#include "text/flat_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <vector>

namespace quenda {
namespace {

using testing::ElementsAre;

TEST(ProgressText, TellsTheTimeLeftOnceItCanBeKnown) {
  EXPECT_EQ(progress_text(4, 60'000), "4 %");
  EXPECT_EQ(progress_text(50, 2'999), "50 %");
  EXPECT_EQ(progress_text(37, 25'000), "37 % (0:43)");
  EXPECT_EQ(progress_text(10, 60'000), "10 % (9:01)");
  EXPECT_EQ(progress_text(100, 60'000), "100 %");
}

TEST(BorderTest, StaysWithinItsRoomAndFollowsTheWholeByItsShare) {
  const BorderRoom small = {.whole = 360, .usual = 157, .least_before = 70, .least_after = 92};
  const BorderRoom large = {.whole = 1000, .usual = 436, .least_before = 70, .least_after = 92};
  EXPECT_EQ(border_at(small, 0), 157);
  EXPECT_EQ(border_at(large, 0), 436);
  const int share = share_of(small, 216, 0);
  EXPECT_EQ(border_at(small, share), 216);
  EXPECT_EQ(border_at(large, share), 600);
  EXPECT_EQ(border_at(small, share_of(small, -50, 0)), 70);
  EXPECT_EQ(border_at(small, share_of(small, 500, 0)), 268);
  EXPECT_EQ(border_at(small, share_of(large, 70, 0)), 70) << "too little for the smaller one";
  const BorderRoom none = {.whole = 100, .usual = 40, .least_before = 70, .least_after = 92};
  EXPECT_EQ(border_at(none, 900), 40);
  EXPECT_EQ(share_of(none, 10, 900), 900) << "kept for a larger window";
}

TEST(BorderTest, KeysMoveItByStepsAndToTheEnds) {
  const BorderRoom room = {.whole = 1000, .usual = 436, .least_before = 70, .least_after = 92};
  int share = 0;
  const auto after = [&](BorderMove move) {
    share = share_after(room, share, move, 10);
    return border_at(room, share);
  };
  EXPECT_EQ(after(BorderMove::kOn), 446);
  EXPECT_EQ(after(BorderMove::kFarBack), 396);
  EXPECT_EQ(after(BorderMove::kToEnd), 908);
  EXPECT_EQ(after(BorderMove::kFarOn), 908);
  EXPECT_EQ(after(BorderMove::kToStart), 70);
}

TEST(ColumnFit, LooksAtAllOfAShortListAndAtWhatIsInViewOfALongOne) {
  EXPECT_THAT(positions_to_fit(3, 1, 2), ElementsAre(0, 1, 2));
  EXPECT_THAT(positions_to_fit(0, 0, 20), testing::IsEmpty());
  const auto of_many = positions_to_fit(1'000'000, 999'990, 20);
  EXPECT_LT(of_many.size(), 5000U);
  EXPECT_THAT(of_many, testing::IsSupersetOf({0, 999'990, 999'999}));
  EXPECT_THAT(of_many, testing::Each(testing::Lt(1'000'000U)));
}

TEST(ColumnFit, WhatTheUserLeavesOfTheRoomGoesToTheOtherColumns) {
  EXPECT_THAT(widths_in({{100, 0}, {200, 0}}, 450), ElementsAre(150, 300));
  EXPECT_THAT(widths_in({{100, 0}, {200, 0}}, 250), ElementsAre(100, 200)) << "no room to share";
  EXPECT_THAT(widths_in({{100, 50}, {200, 0}, {100, 0}}, 650), ElementsAre(50, 400, 200));
  EXPECT_THAT(widths_in({{100, 50}, {200, 300}}, 400), ElementsAre(50, 350));
  EXPECT_THAT(widths_in({{100, 500}, {200, 0}}, 400), ElementsAre(500, 200));
}

class ViewOrderTest : public testing::Test {
 protected:
  ViewOrderTest() {
    for (const std::string_view name : {"Zorn", "\xC4rmel", "berg", "Arm", "Berg"}) {
      table_.add_row(std::array{name});
    }
  }
  std::vector<std::size_t> seen() {
    std::vector<std::size_t> rows;
    for (std::size_t at = 0; at < table_.rows(); ++at) rows.push_back(order_.row_at(at));
    return rows;
  }

  void sort() {
    order_.sort_by(0, table_.rows(),
                   [&](std::size_t row) { return std::string(table_.cell(row, 0)); });
  }

  FlatTable table_{1};
  ViewOrder order_;
};

TEST_F(ViewOrderTest, GoesUpDownAndBack) {
  sort();
  EXPECT_THAT(seen(), ElementsAre(3, 1, 2, 4, 0));
  EXPECT_EQ(order_.position_of(4), 3U);
  sort();
  EXPECT_THAT(seen(), ElementsAre(0, 2, 4, 1, 3));
  sort();
  EXPECT_THAT(seen(), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(ViewOrderTest, FollowsARowThatGoes) {
  sort();
  table_.remove_row(1);
  order_.row_removed(1);
  EXPECT_THAT(seen(), ElementsAre(2, 1, 3, 0));
}

}  // namespace
}  // namespace quenda

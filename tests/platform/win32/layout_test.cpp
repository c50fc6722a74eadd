#include "platform/win32/windows/layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/controls/form.h"
#include "platform/controls/simple_controls.h"

namespace quenda {
namespace {

class LayoutTest : public testing::Test {
 protected:
  Form form_{"fTest"};
  Frame page_{form_, "page"};
  Label left_{form_, "left"};
  Button right_{form_, "right"};
};

TEST_F(LayoutTest, NeighboursTouchAtEveryDpi) {
  left_.set_place({25, 0, 1010, 300});
  right_.set_place({1035, 0, 977, 300});
  for (const int dpi : {96, 120, 144, 168, 192, 288}) {
    const Pixels left = laid_out(left_, dpi, {});
    EXPECT_EQ(left.left + left.width, laid_out(right_, dpi, {}).left) << dpi;
  }
}

TEST_F(LayoutTest, TwipsComeBackFromPixels) {
  for (const int twips : {0, 500, 10920, -480, 64000}) {
    EXPECT_NEAR(twips_of(pixels_of(twips, 96), 96), twips, 8) << twips;
  }
}

TEST_F(LayoutTest, AControlGrowsOnlyAsFarAsItsFrameDoes) {
  page_.set_place({0, 0, 1500, 1500});
  left_.set_place({150, 150, 750, 300});
  right_.set_place({150, 600, 750, 300});
  left_.set_parent(&page_);
  right_.set_parent(&page_);
  left_.set_anchors(Anchor::kBoth, Anchor::kStart);
  right_.set_anchors(Anchor::kEnd, Anchor::kEnd);
  const Growth growth{40, 30};
  EXPECT_EQ(laid_out(left_, 96, growth), (Pixels{10, 10, 50, 20})) << "the page stays as it is";
  page_.set_anchors(Anchor::kBoth, Anchor::kBoth);
  EXPECT_EQ(laid_out(page_, 96, growth), (Pixels{0, 0, 140, 130}));
  EXPECT_EQ(laid_out(left_, 96, growth), (Pixels{10, 10, 90, 20}));
  EXPECT_EQ(laid_out(right_, 96, growth), (Pixels{50, 70, 50, 20}));
}

TEST_F(LayoutTest, NeighboursInARowShareWhatTheirFrameGains) {
  page_.set_place({0, 0, 1500, 1500});
  page_.set_anchors(Anchor::kBoth, Anchor::kStart);
  left_.set_place({0, 0, 720, 300});
  right_.set_place({780, 0, 720, 300});
  for (Control* control : std::initializer_list<Control*>{&left_, &right_}) {
    control->set_parent(&page_);
    control->set_anchors(Anchor::kShare, Anchor::kStart);
  }
  EXPECT_EQ(laid_out(left_, 96, {100, 30}), (Pixels{0, 0, 96, 20}));
  EXPECT_EQ(laid_out(right_, 96, {100, 30}), (Pixels{104, 0, 96, 20}));
}

TEST_F(LayoutTest, WhatLiesInAFrameWithAShareGrowsByIt) {
  Frame whole{form_, "whole"};
  whole.set_place({0, 0, 1500, 1500});
  whole.set_anchors(Anchor::kBoth, Anchor::kBoth);
  page_.set_parent(&whole);
  page_.set_place({0, 0, 1500, 600});
  page_.set_anchors(Anchor::kBoth, Anchor::kShare);
  left_.set_parent(&page_);
  left_.set_place({0, 150, 750, 450});
  left_.set_anchors(Anchor::kStart, Anchor::kBoth);
  right_.set_parent(&whole);
  right_.set_place({0, 600, 1500, 300});
  right_.set_anchors(Anchor::kStart, Anchor::kShareStart);
  EXPECT_EQ(laid_out(page_, 96, {0, 100}), (Pixels{0, 0, 100, 80}));
  EXPECT_EQ(laid_out(left_, 96, {0, 100}), (Pixels{0, 10, 50, 70}));
  EXPECT_EQ(laid_out(right_, 96, {0, 100}), (Pixels{0, 80, 100, 20}));
}

TEST_F(LayoutTest, WhatASplitterPartsEndsAndBeginsAtIt) {
  page_.set_place({0, 0, 1500, 1500});
  page_.set_anchors(Anchor::kBoth, Anchor::kBoth);
  Splitter border(form_, "border");
  border.set_place({0, 600, 1500, 90});
  border.set_anchors(Anchor::kBoth, Anchor::kShareStart);
  left_.set_place({0, 150, 750, 450});
  left_.set_anchors(Anchor::kStart, Anchor::kShare);
  right_.set_place({0, 690, 750, 810});
  right_.set_anchors(Anchor::kStart, Anchor::kShare);
  for (Control* control : std::initializer_list<Control*>{&left_, &border, &right_}) {
    control->set_parent(&page_);
  }
  const Growth growth{0, 100};
  EXPECT_EQ(laid_out(left_, 96, growth), (Pixels{0, 10, 50, 70}));
  EXPECT_EQ(laid_out(border, 96, growth), (Pixels{0, 80, 100, 6}));
  EXPECT_EQ(laid_out(right_, 96, growth), (Pixels{0, 86, 50, 114}));
  border.set_share(250);
  EXPECT_EQ(laid_out(left_, 96, growth), (Pixels{0, 10, 50, 40}));
  EXPECT_EQ(laid_out(border, 96, growth), (Pixels{0, 50, 100, 6}));
  EXPECT_EQ(laid_out(right_, 96, growth), (Pixels{0, 56, 50, 144}));
  EXPECT_EQ(laid_out(right_, 96, {}), (Pixels{0, 31, 50, 69})) << "in the smallest window, too";
}

TEST_F(LayoutTest, TabOrderPutsAFrameWhereItsFirstControlIsAndALabelBeforeItsField) {
  Label name{form_, "labName"};
  Button field{form_, "field"};
  field.set_tab_index(4);
  left_.set_parent(&page_);
  right_.set_parent(&page_);
  right_.set_tab_index(7);
  Button first{form_, "first"};
  first.set_tab_index(0);
  EXPECT_THAT(in_tab_order(form_, nullptr), testing::ElementsAre(&first, &name, &field, &page_));
  EXPECT_THAT(in_tab_order(form_, &page_), testing::ElementsAre(&left_, &right_));
}

}  // namespace
}  // namespace quenda

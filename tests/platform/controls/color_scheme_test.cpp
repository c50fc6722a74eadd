#include "platform/controls/color_scheme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quenda {
namespace {

constexpr SystemColors kUsual = {Color{240, 240, 240}, {160, 160, 160}, {0, 0, 0},
                                 {255, 255, 255},      {0, 0, 0},       {109, 109, 109},
                                 {0, 120, 215},        {255, 255, 255}};
constexpr SystemColors kYellowOnBlack = {Color{0, 0, 0}, {255, 255, 0},  {255, 255, 0},
                                         {0, 0, 0},      {255, 255, 0},  {0, 255, 0},
                                         {0, 128, 0},    {255, 255, 255}};

TEST(LookMode, HighContrastOutranksDarkAndSoDoColoursOfTheUsersOwn) {
  EXPECT_EQ(look_mode(false, false, kUsual), LookMode::kLight);
  EXPECT_EQ(look_mode(false, true, kUsual), LookMode::kDark);
  EXPECT_EQ(look_mode(true, true, kUsual), LookMode::kContrast);
  EXPECT_EQ(look_mode(false, true, kYellowOnBlack), LookMode::kContrast);
}

TEST(ColorSchemeTest, EveryColourOfHighContrastIsOneOfTheSystems) {
  const ColorScheme scheme = color_scheme(LookMode::kContrast, kYellowOnBlack);
  for (const Color color : scheme.colors) {
    EXPECT_NE(std::find(kYellowOnBlack.begin(), kYellowOnBlack.end(), color), kYellowOnBlack.end());
  }
  EXPECT_EQ(scheme[Tone::kNumber], scheme[Tone::kField]);
  EXPECT_EQ(scheme[Tone::kChosenText], scheme[Tone::kFieldText]);
}

/// How light a colour is to the eye, 0 to 1.
double luminance(Color color) {
  const auto part = [](int value) {
    const double share = value / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.red) + 0.7152 * part(color.green) + 0.0722 * part(color.blue);
}

double contrast(Color one, Color other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

TEST(ColorSchemeTest, WhatIsWrittenCanBeReadWithLightAndDarkWindows) {
  constexpr std::pair<Tone, Tone> kWritten[] = {
      {Tone::kText, Tone::kFace},           {Tone::kFieldText, Tone::kField},
      {Tone::kText, Tone::kButton},         {Tone::kText, Tone::kHotButton},
      {Tone::kText, Tone::kHeading},        {Tone::kFieldText, Tone::kRestingSelection},
      {Tone::kChosenText, Tone::kName},     {Tone::kChosenText, Tone::kNumber},
      {Tone::kChosenText, Tone::kAddress1}, {Tone::kChosenText, Tone::kAddress2}};
  for (const LookMode mode : {LookMode::kLight, LookMode::kDark}) {
    const ColorScheme scheme = color_scheme(mode, kUsual);
    for (const auto& [text, behind] : kWritten) {
      EXPECT_GE(contrast(scheme[text], scheme[behind]), 7.0)
          << static_cast<int>(mode) << ": " << static_cast<int>(text) << " on "
          << static_cast<int>(behind);
    }
    EXPECT_GE(contrast(scheme[Tone::kGreyText], scheme[Tone::kFace]), 4.0);
    EXPECT_GE(contrast(scheme[Tone::kGrip], scheme[Tone::kField]), 2.5);
  }
}

}  // namespace
}  // namespace quenda

#include "text/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/literal_1252.h"

namespace quenda {
namespace {

TEST(Text, LowersTheWholeCodePage) {
  EXPECT_EQ(to_lower(u8"ÄÖÜ ŠŒŽŸ ÐÞ×÷ß€ÿ"_de), u8"äöü šœžÿ ðþ×÷ß€ÿ"_de);
  EXPECT_TRUE(equal_ignoring_case(u8"MÜLLER"_de, u8"müller"_de));
  EXPECT_FALSE(equal_ignoring_case("a", "ab"));
}

TEST(Text, ConvertsEveryCharacterToUtf8AndBack) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  EXPECT_EQ(from_utf8(to_utf8(all)), all);
  EXPECT_EQ(to_utf8("\x80\xE4"), "\xE2\x82\xAC\xC3\xA4");
}

TEST(Text, RefusesWhatIsNoUtf8OrHasNoByte) {
  for (const auto* text :
       {"\xE4", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xD0\x96", "\xF0\x9F\x98\x80"}) {
    EXPECT_EQ(from_utf8(text), std::nullopt);
  }
}

TEST(Text, SplitsAndReplacesFromLeftToRight) {
  EXPECT_THAT(split("a;;b;", ";"), testing::ElementsAre("a", "", "b", ""));
  EXPECT_THAT(split("", ";"), testing::ElementsAre(""));
  EXPECT_EQ(replace_all("aaa", "aa", "b"), "ba");
  EXPECT_EQ(replace_all("abc", "", "x"), "abc");
  EXPECT_EQ(trim("  \ta  "), "\ta");
}

}  // namespace
}  // namespace quenda

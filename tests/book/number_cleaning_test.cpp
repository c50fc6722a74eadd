#include "book/number_cleaning.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quenda {
namespace {

TEST(CleanNumber, IsInDiallingForm) {
  struct Case {
    std::string_view number, country, cleaned;
  };
  const Case cases[] = {
      {"+49 (0)30 / 123-45", "0049", "03012345"},
      {"+1 212 555", "0049", "001212555"},
      {"00493012345", "0049", "03012345"},
      {"004930004912", "0049", "03012"},  // every occurrence goes
      {"0300049", "0049", "0300049"},     // none when none is in front
      {"(+49) 30", "0049", "04930"},      // "(00" loses its "(0"
      {"030/12.34,5", "", "03012345"},
      {"[030]\"*#=?\\1", "0049", "0301"},
      {"12345678", "0049", "012345678"},
      {"", "0049", "0"},
      {"+49", "0049", "0"},
      {"0800 PIZZA", "0049", "0800PIZZA"},
  };
  for (const Case& c : cases) EXPECT_EQ(clean_number(c.number, c.country), c.cleaned) << c.number;
}

TEST(CleanNumber, TakesNumbersOfAnyLength) {
  for (std::size_t size = 60; size < 70; ++size) {
    EXPECT_EQ(clean_number(std::string(size, '+'), ""), std::string(2 * size, '0'));
    EXPECT_EQ(clean_number(std::string(size, '1'), ""), "0" + std::string(size, '1'));
  }
}

TEST(AddAreaCode, CompletesShortLocalNumbersOnly) {
  EXPECT_EQ(add_area_code("123456", "030"), "030123456");
  EXPECT_EQ(add_area_code("12345678", "030"), "03012345678");
  EXPECT_EQ(add_area_code("123456789", "030"), "123456789");
  EXPECT_EQ(add_area_code("0301234", "030"), "0301234");
}

TEST(OwnCodes, CompleteNeedsTwoZerosAcceptableOne) {
  EXPECT_TRUE(own_codes_complete("0049", "030"));
  EXPECT_FALSE(own_codes_complete("049", "030"));
  EXPECT_TRUE(own_codes_acceptable("049", "030"));
  for (const auto* const area : {"30", "03", "0", ""}) {
    EXPECT_FALSE(own_codes_complete("0049", area)) << area;
    EXPECT_FALSE(own_codes_acceptable("0049", area)) << area;
  }
  EXPECT_FALSE(own_codes_acceptable("49", "030"));
  EXPECT_FALSE(own_codes_acceptable("00", "030"));
}

}  // namespace
}  // namespace quenda

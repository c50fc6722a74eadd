#include "text/conversions.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>

#include "tests/shared/fault_of.h"

namespace quenda {
namespace {

TEST(IsNumeric, DecidesAndConvertsAlike) {
  const std::pair<std::string_view, double> numbers[] = {{"03012345", 3012345},
                                                         {"  42  ", 42},
                                                         {"-7", -7},
                                                         {"+7", 7},
                                                         {"7-", -7},
                                                         {"7+", 7},
                                                         {"1.234.567", 1234567},
                                                         {"1.2.", 12},
                                                         {".5", 5},
                                                         {",5", 0.5},
                                                         {"5,", 5},
                                                         {"-3,25", -3.25},
                                                         {"1E5", 100000},
                                                         {"1e+2", 100},
                                                         {"2,5E-1", 0.25},
                                                         {"1E-999", 0},
                                                         {"0301234567890123", 301234567890123}};
  for (const auto& [text, value] : numbers) {
    EXPECT_TRUE(is_numeric(text)) << text;
    EXPECT_DOUBLE_EQ(to_number(text), value) << text;
  }
  for (const auto* text : {"",
                           "   ",
                           "4 9",
                           "-",
                           "-7-",
                           ".",
                           ",",
                           "1,2,3",
                           "1,2.3",
                           "E5",
                           "1E",
                           "1E+",
                           "1E5E",
                           "0301234:",
                           "03012/45",
                           "030123456a",
                           "0301234567890\3721",
                           "12a",
                           "\t5",
                           "0x1F",
                           "\xB2",
                           "1E5,5"}) {
    EXPECT_FALSE(is_numeric(text)) << text;
    EXPECT_EQ(fault_of([&] { to_number(text); }), kFaultTypeMismatch) << text;
  }
}

TEST(ToNumber, RaisesOverflowBeyondTheRange) {
  EXPECT_EQ(fault_of([] { to_number("1E400"); }), kFaultOverflow);
  EXPECT_EQ(fault_of([] { to_number(std::string(400, '9')); }), kFaultOverflow);
  EXPECT_EQ(to_number("0," + std::string(400, '0') + "1"), 0);
}

TEST(ToInt16, RoundsHalvesToTheEvenNeighbourAndHoldsSixteenBits) {
  const std::pair<std::string_view, int> numbers[] = {
      {"2,5", 2},   {"3,5", 4},         {"-2,5", -2},        {"007", 7},
      {" 12 ", 12}, {"32767,4", 32767}, {"-32768,5", -32768}};
  for (const auto& [text, value] : numbers) EXPECT_EQ(to_int16(text), value) << text;
  for (const auto* text : {"32767,5", "-32769", "1E99"}) {
    EXPECT_EQ(fault_of([&] { to_int16(text); }), kFaultOverflow) << text;
  }
  for (const auto* text : {"", "12a"}) {
    EXPECT_EQ(fault_of([&] { to_int16(text); }), kFaultTypeMismatch) << text;
  }
}

TEST(ToBoolean, TakesWordsOfBothLanguagesAndNumbers) {
  for (const auto* text : {"True", "WAHR", "wahr", "1", "-1", "0,5", " 2 ", "10000"}) {
    EXPECT_TRUE(to_boolean(text)) << text;
  }
  for (const auto* text : {"False", "falsch", "FALSCH", "0", "000", "-0", "0,0"}) {
    EXPECT_FALSE(to_boolean(text)) << text;
  }
  for (const auto* text : {"", "yes", "True ", "ja", "1x"}) {
    EXPECT_EQ(fault_of([&] { to_boolean(text); }), kFaultTypeMismatch) << text;
  }
}

TEST(LeadingNumber, StopsAtTheFirstForeignCharacter) {
  const std::pair<std::string_view, double> texts[] = {
      {"  12 34 Main", 1234}, {"-1.5x", -1.5}, {"+3,9", 3}, {"1E2", 100},
      {"1D2", 100},           {"x1", 0},       {"", 0},     {"1-2", 1}};
  for (const auto& [text, value] : texts) EXPECT_EQ(leading_number(text), value) << text;
}

}  // namespace
}  // namespace quenda

#include "support/conversions.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/fault.h"

namespace quenda {
namespace {

/// The number of the fault that the call raises, 0 for none.
template <class Call>
int fault_of(Call call) {
  try {
    call();
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
  return 0;
}

struct NumericCase {
  std::string_view text;
  bool numeric;
  double value = 0;
};

void PrintTo(const NumericCase& c, std::ostream* out) { *out << '"' << c.text << '"'; }

class IsNumeric : public testing::TestWithParam<NumericCase> {};

TEST_P(IsNumeric, DecidesAndConvertsAlike) {
  const NumericCase& c = GetParam();
  EXPECT_EQ(is_numeric(c.text), c.numeric);
  if (c.numeric) {
    EXPECT_DOUBLE_EQ(to_number(c.text), c.value);
  } else {
    EXPECT_EQ(fault_of([&] { to_number(c.text); }), kFaultTypeMismatch);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, IsNumeric,
    testing::Values(
        NumericCase{"03012345", true, 3012345}, NumericCase{"  42  ", true, 42},
        NumericCase{"-7", true, -7}, NumericCase{"+7", true, 7}, NumericCase{"7-", true, -7},
        NumericCase{"7+", true, 7}, NumericCase{"1.234.567", true, 1234567},
        NumericCase{"1.2.", true, 12}, NumericCase{".5", true, 5}, NumericCase{",5", true, 0.5},
        NumericCase{"5,", true, 5}, NumericCase{"-3,25", true, -3.25},
        NumericCase{"1E5", true, 100000}, NumericCase{"1e+2", true, 100},
        NumericCase{"2,5E-1", true, 0.25}, NumericCase{"1E-999", true, 0}, NumericCase{"", false},
        NumericCase{"   ", false}, NumericCase{"4 9", false}, NumericCase{"-", false},
        NumericCase{"-7-", false}, NumericCase{".", false}, NumericCase{",", false},
        NumericCase{"1,2,3", false}, NumericCase{"1,2.3", false}, NumericCase{"E5", false},
        NumericCase{"1E", false}, NumericCase{"1E+", false}, NumericCase{"1E5E", false},
        NumericCase{"12a", false}, NumericCase{"\t5", false}, NumericCase{"0x1F", false},
        NumericCase{"\xB2", false}, NumericCase{"1E5,5", false}));

TEST(ToNumber, RaisesOverflowBeyondTheRange) {
  EXPECT_EQ(fault_of([] { to_number("1E400"); }), kFaultOverflow);
  EXPECT_EQ(fault_of([] { to_number(std::string(400, '9')); }), kFaultOverflow);
  EXPECT_EQ(to_number("0," + std::string(400, '0') + "1"), 0);
}

TEST(ToInt16, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(to_int16("2,5"), 2);
  EXPECT_EQ(to_int16("3,5"), 4);
  EXPECT_EQ(to_int16("-2,5"), -2);
  EXPECT_EQ(to_int16("007"), 7);
  EXPECT_EQ(to_int16(" 12 "), 12);
}

TEST(ToInt16, HoldsSixteenBits) {
  EXPECT_EQ(to_int16("32767,4"), 32767);
  EXPECT_EQ(to_int16("-32768,5"), -32768);
  EXPECT_EQ(fault_of([] { to_int16("32767,5"); }), kFaultOverflow);
  EXPECT_EQ(fault_of([] { to_int16("-32769"); }), kFaultOverflow);
  EXPECT_EQ(fault_of([] { to_int16("1E99"); }), kFaultOverflow);
  EXPECT_EQ(fault_of([] { to_int16(""); }), kFaultTypeMismatch);
  EXPECT_EQ(fault_of([] { to_int16("12a"); }), kFaultTypeMismatch);
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
  EXPECT_EQ(leading_number("  12 34 Main"), 1234);
  EXPECT_EQ(leading_number("-1.5x"), -1.5);
  EXPECT_EQ(leading_number("+3,9"), 3);
  EXPECT_EQ(leading_number("1E2"), 100);
  EXPECT_EQ(leading_number("1D2"), 100);
  EXPECT_EQ(leading_number("x1"), 0);
  EXPECT_EQ(leading_number(""), 0);
  EXPECT_EQ(leading_number("1-2"), 1);
}

}  // namespace
}  // namespace quenda

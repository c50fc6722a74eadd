#include "book/number_doubt.h"

#include <gtest/gtest.h>

namespace quenda {
namespace {

TEST(NumberDoubt, LooksAtTheNumberAsItsSourceHasIt) {
  struct Case {
    std::string_view number;
    NumberDoubt doubt;
  };
  for (const auto& [number, doubt] : {
           Case{"", NumberDoubt::kNone},
           Case{"+49 30 123456", NumberDoubt::kNone},
           Case{"(030) 123456-7", NumberDoubt::kNone},
           Case{"030/1234567", NumberDoubt::kNone},
           Case{"(+49) 171/2345678", NumberDoubt::kNone},
           Case{"004930123456789012", NumberDoubt::kSeveral},
           Case{"030 123456; 0171 2345678", NumberDoubt::kSeveral},
           Case{"12345678", NumberDoubt::kNoAreaCode},
           Case{"49 30 123456", NumberDoubt::kNoAreaCode},
           Case{" 4.93012E+11 ", NumberDoubt::kExponent},
           Case{"493E10", NumberDoubt::kExponent},
           Case{"0301234567E", NumberDoubt::kLetters},
           Case{"030 1234567 priv", NumberDoubt::kLetters},
       }) {
    EXPECT_EQ(doubt_about(number), doubt) << number;
  }
}

}  // namespace
}  // namespace quenda

#include "platform/win32/com/com_values.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/shared/fault_of.h"

namespace quenda {
namespace {

TEST(GermanDate, IsShortAndHasATimeOnlyWhereThereIsOne) {
  EXPECT_EQ(german_date(25569.0), "01.01.1970");
  EXPECT_EQ(german_date(45000.5), "15.03.2023 12:00:00");
  EXPECT_EQ(german_date(45000.9999999), "16.03.2023") << "nearest second";
  EXPECT_EQ(german_date(949998.0), "01.01.4501") << "what the program gives for no date";
  EXPECT_EQ(german_date(-1.25), "29.12.1899 06:00:00");
  EXPECT_EQ(german_date(-657434.0), "01.01.0100");
  for (const double none : {2958466.0, -657435.0, std::nan("")}) {
    EXPECT_EQ(fault_of([&] { german_date(none); }), kFaultTypeMismatch) << none;
  }
}

TEST(Variant, NothingIsTheEmptyTextAndNoNumberAFault) {
  Variant nothing;
  nothing.get()->vt = VT_NULL;
  EXPECT_EQ(nothing.text(), "");
  EXPECT_FALSE(Variant(40L).object());
  EXPECT_EQ(Variant(40L).text(), "40");
  EXPECT_EQ(Variant(std::string_view("-7")).number(), -7);
  EXPECT_EQ(fault_of([] { static_cast<void>(Variant(std::string_view("x")).number()); }),
            kFaultTypeMismatch);
}

}  // namespace
}  // namespace quenda

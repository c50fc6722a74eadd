#include "platform/win32/com_values.h"

#include <gtest/gtest.h>

#include "tests/shared/fault_of.h"

namespace quenda {
namespace {

TEST(GermanDate, HasATimeOnlyWhereThereIsOne) {
  EXPECT_EQ(german_date(25569.0), "01.01.1970");
  EXPECT_EQ(german_date(45000.5), "15.03.2023 12:00:00");
  EXPECT_EQ(german_date(949998.0), "01.01.4501") << "means none, and is given as Outlook gives it";
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

#include "sources/ispy_log.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string_view>

namespace quenda {
namespace {

TEST(IspyCaller, IsReadFromALine) {
  const auto caller = ispy_caller("2014-03-02 17:05:09 Erika Mustermann [#0301234567] answered");
  ASSERT_TRUE(caller.has_value());
  EXPECT_EQ(caller->name, "Erika Mustermann");
  EXPECT_EQ(caller->number, "0301234567");
}

struct DroppedLine {
  const char* name;
  std::string_view line;
};
void PrintTo(const DroppedLine& c, std::ostream* out) { *out << c.name; }

class DroppedIspyLine : public testing::TestWithParam<DroppedLine> {};

TEST_P(DroppedIspyLine, GivesNoCaller) { EXPECT_FALSE(ispy_caller(GetParam().line).has_value()); }

INSTANTIATE_TEST_SUITE_P(
    Lines, DroppedIspyLine,
    testing::Values(DroppedLine{"placeholder name", "2014-03-02 17:05 <unbekannt> [#0301234567]"},
                    DroppedLine{"withheld number", "2014-03-02 17:05 Erika [#anonym]"},
                    DroppedLine{"name is a number", "2014-03-02 17:05 0301234567 [#0301234567]"},
                    DroppedLine{"no second blank", "2014-03-02 [#0301234567]"},
                    DroppedLine{"no blank", "x[#0301234567]"},
                    DroppedLine{"no bracket", "2014-03-02 17:05 Erika 0301234567"},
                    DroppedLine{"no number mark", "2014-03-02 17:05 Erika [0301234567]"},
                    DroppedLine{"open bracket", "2014-03-02 17:05 Erika [#0301234567"},
                    DroppedLine{"empty line", ""}));

}  // namespace
}  // namespace quenda

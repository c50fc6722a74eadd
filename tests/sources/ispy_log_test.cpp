#include "sources/ispy_log.h"

#include <gtest/gtest.h>

namespace quenda {
namespace {

TEST(IspyCaller, IsReadFromALine) {
  const auto caller = ispy_caller("2014-03-02 17:05:09 Erika Mustermann [#0301234567] answered");
  ASSERT_TRUE(caller.has_value());
  EXPECT_EQ(caller->name, "Erika Mustermann");
  EXPECT_EQ(caller->number, "0301234567");
}

TEST(IspyCaller, IsNotInALineThatIsBrokenOrTellsNobody) {
  for (const auto* line :
       {"2014-03-02 17:05 <unbekannt> [#0301234567]", "2014-03-02 17:05 Erika [#anonym]",
        "2014-03-02 17:05 0301234567 [#0301234567]", "2014-03-02 [#0301234567]", "x[#0301234567]",
        "2014-03-02 17:05 Erika 0301234567", "2014-03-02 17:05 Erika [0301234567]",
        "2014-03-02 17:05 Erika [#0301234567", ""}) {
    EXPECT_FALSE(ispy_caller(line).has_value()) << line;
  }
}

}  // namespace
}  // namespace quenda

#include "sources/cell_adaptation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text/literal_1252.h"

namespace quenda {
namespace {

TEST(NumbersInCell, AreTakenApartAndCleaned) {
  struct Case {
    std::string_view cell;
    std::vector<std::string> numbers;
    char delimiter = ';';
  };
  const Case cases[] = {{"", {}},
                        {"030 1234567", {"030 1234567"}},
                        {"030 1 ::: 040 2", {"030 1", "040 2"}},
                        {"030 1;040 2", {"030 1", "040 2"}},
                        {"030 1|040 2", {"030 1", "040 2"}},
                        {"030 1|040", {"030 1,040"}, ','},
                        {"030 1\x0E\x0F"
                         "040 2",
                         {"030 1", "040 2"}},
                        {"0351 5550151 / 0351 5550152", {"0351 5550151", "0351 5550152"}},
                        {"030/5550151/+49 171 5550152", {"030/5550151", "+49 171 5550152"}},
                        {"0351/5550153", {"0351/5550153"}},
                        {"0351 5550151/52", {"0351 5550151/52"}},
                        {"030 123456/5550152", {"030 123456/5550152"}},
                        {u8"030 123456 (Büro)"_de, {"030 123456"}},
                        {"030 123456 (Haus 2)", {"030 123456"}},
                        {"030 123456 privat", {"030 123456"}},
                        {"030 123456; abends", {"030 123456"}},
                        {"(030) 123456", {"(030) 123456"}},
                        {"0800 VANITY", {"0800 VANITY"}},
                        {"030 12345 App. 12", {"030 12345 App. 12"}},
                        {u8"030\u00A0123–45"_de, {"030 123-45"}},
                        {"keine", {"keine"}},
                        {" ", {" "}},
                        {";", {";"}}};
  for (const Case& c : cases) {
    EXPECT_EQ(numbers_in_cell(c.cell, c.delimiter), c.numbers) << c.cell;
  }
}

TEST(AdaptedText, CannotBreakAnEntry) {
  EXPECT_EQ(adapted_text("Meier; Hans"), "Meier, Hans");
  EXPECT_EQ(adapted_text("a\x0E\x0F"
                         "b\x0F"
                         "c"),
            "a b c");
  EXPECT_EQ(adapted_text("[vcd(x)vcd]"), "(vcd(x)vcd)");
  EXPECT_FALSE(needs_adapting("Meier, Hans"));
  for (const char* text : {"a;b", "[vcd(", ")vcd]", "a\x0F"}) EXPECT_TRUE(needs_adapting(text));
}

TEST(NameOrStandIn, TakesTheFirstThatIsThere) {
  EXPECT_EQ(name_or_stand_in("Meier ", "b", "c"), "Meier ");
  EXPECT_EQ(name_or_stand_in(" ", "b", "c"), "b");
  EXPECT_EQ(name_or_stand_in("", " ", "c"), "c");
}

}  // namespace
}  // namespace quenda

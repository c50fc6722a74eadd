#include "wizard/header_columns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quenda {
namespace {

using Header = std::vector<std::string>;
using Positions = std::vector<int>;
constexpr AreaNames kAreas = {"Name", "Nummer", "Adresse"};

TEST(MatchSelection, SelectsSavedColumnsInTheOrderOfTheFile) {
  SelectionTable saved;
  saved[kNames] = {"Vorname", "Nachname", ""};
  saved[kNumbers] = {"Mobil", "", ""};
  const auto match = match_selection(Header{"Nachname", "Mobil", "Vorname"}, {}, saved);
  EXPECT_EQ(match.positions[kNames], (Positions{0, 2}));
  EXPECT_EQ(match.positions[kNumbers], Positions{1});
  EXPECT_TRUE(areas_to_check(match.unmatched, kAreas).empty());
}

TEST(MatchSelection, ComparesExactlyAndTakesTheFirstOfEqualColumns) {
  SelectionTable saved;
  saved[kNumbers] = {"Tel", "Tel", "tel"};
  const auto match = match_selection(Header{"Tel", "Tel"}, {}, saved);
  EXPECT_EQ(match.positions[kNumbers], Positions{0});
  EXPECT_TRUE(match.unmatched[kNumbers]);
}

TEST(AreasToCheck, NameEachAreaOnceAndAddress2OnlyWithoutAddress1) {
  EXPECT_EQ(areas_to_check({true, true, false, true}, kAreas),
            (Header{"Name", "Nummer", "Adresse 2"}));
  EXPECT_EQ(areas_to_check({false, false, true, true}, kAreas), Header{"Adresse 1"});
}

TEST(ColumnsSufficient, NeedsOneOrTwoNamesAndOneToThreeNumbers) {
  EXPECT_TRUE(columns_sufficient(1, 1));
  EXPECT_TRUE(columns_sufficient(2, 3));
  EXPECT_FALSE(columns_sufficient(0, 1));
  EXPECT_FALSE(columns_sufficient(3, 1));
  EXPECT_FALSE(columns_sufficient(1, 0));
  EXPECT_FALSE(columns_sufficient(1, 4));
}

}  // namespace
}  // namespace quenda

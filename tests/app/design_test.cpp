#include <gtest/gtest.h>

#include <map>
#include <string>

#include "tests/shared/wizard_fixture.h"

// What a keyboard user meets: the way of the Tab key through the window.
namespace quenda {
namespace {

using MainDesign = WizardTest;

TEST_F(MainDesign, NoTwoControlsShareAPlaceInTheTabOrder) {
  start();
  std::map<int, std::string> places;
  for (const Control* control : form->controls()) {
    if (control->tab_index() < 0) continue;
    const auto [place, is_new] = places.emplace(control->tab_index(), control->name());
    EXPECT_TRUE(is_new) << control->name() << " and " << place->second << " are both at "
                        << place->first;
  }
  EXPECT_GT(places.size(), 50U);
}

}  // namespace
}  // namespace quenda

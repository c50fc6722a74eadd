#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

#include "tests/shared/wizard_fixture.h"

// What is read aloud to users who do not see the window.
namespace quenda {
namespace {

using MainDesign = WizardTest;

TEST_F(MainDesign, WhatTheTabKeyReachesHasANameOfItsOwnOnItsPage) {
  start();
  std::map<int, const Control*> in_order;
  for (const Control* control : form->controls()) {
    if (control->tab_index() >= 0) in_order[control->tab_index()] = control;
  }
  std::map<std::pair<const Control*, std::string>, std::string> names;
  const Control* before = nullptr;
  for (const auto& [place, control] : in_order) {
    const bool labelled = before != nullptr && before->kind() == ControlKind::kLabel;
    std::string name = control->spoken_name();
    if (name.empty()) name = control->caption();
    if (name.empty() && labelled) name = before->caption();
    before = control;
    if (control->kind() == ControlKind::kLabel) continue;
    EXPECT_NE(name, "") << control->name();
    const Control* page = control->parent();
    const auto [same, is_new] = names.emplace(std::pair(page, name), control->name());
    EXPECT_TRUE(is_new) << control->name() << " and " << same->second << " are both " << name;
  }
}

}  // namespace
}  // namespace quenda

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

#include "tests/shared/wizard_fixture.h"

// What is read aloud to users who do not see the window.
namespace quenda {
namespace {

using MainDesign = WizardTest;

/// The names of the form's controls in the order of their ids, as "labFile" or "frmImp*5".
std::string in_order(const Form& form) {
  std::string all;
  const auto& controls = form.controls();
  for (std::size_t i = 0; i < controls.size();) {
    std::size_t end = i;
    while (end < controls.size() && controls[end]->name() == controls[i]->name()) ++end;
    if (!all.empty()) all += ' ';
    all += controls[i]->name();
    if (end - i > 1) all += "*" + std::to_string(end - i);
    i = end;
  }
  return all;
}

TEST_F(MainDesign, TheOrderOfTheControlsStaysSinceTheirIdsComeFromIt) {
  start();
  EXPECT_EQ(in_order(*form),
            "frmTitle labTitle labHelp*6 PicProgress cmdHelp cmdBack cmdFor cmdCancel StatusBar "
            "txtDDE tmOLcheck frmPages frmImp*5 frmImpOL "
            "labFile txtImpFile cmdFile labLimiter cmbLimiter labLimError cmdIspy labIspy "
            "cmdOutlook labOLver labOLhint chkNameLen "
            "labHeader*4 lstHeader*4 labShow lstShow "
            "labHeadName txtHeadName chkFlip labHeadNumber labNameExt labHead*3 txtHead*3 "
            "txtIndex*3 "
            "labFlipAdress cmbFlipAdress labAdres*2 txtAdres*2 labAdresBind frmBind*3 chk1*2 "
            "chk2*2 chk3*2 txtAdresBind*3 "
            "labImpFinal lstImpFinal cmdEditItems cmdDel labDelete frmAsk optAsk*3 labStateCode "
            "txtStateCode labOVW txtOVW labOVWhint "
            "labImport*3 chkImport*11 txtImport*11 chkAdr*14 chkFlipName chkFlipAdress "
            "labPreview lstImport "
            "labEdited labCodes cmdCompose "
            "labFacts chkConvert labTable cmdSuggest chkBackup cmdUndo splPreview tmResults "
            "cmdReport");
}

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

#include "book/pages/entry_hints.h"

#include "book/number_cleaning.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/shell/design.h"

namespace quenda {
namespace {

constexpr DesignRow<EntryHints> kDesign[] = {
    {.control = control_at<&EntryHints::labEdited>,
     .place = {2220, 0, 5100, 255},
     .caption = "Import_Label_EditsGetLost",
     .across = Anchor::kBoth},
    {.control = control_at<&EntryHints::labCodes>,
     .place = {7500, 4320, 2940, 255},
     .across = Anchor::kEnd},
    {.control = control_at<&EntryHints::cmdCompose>,
     .place = {7500, 5010, 2940, 390},
     .tab = 81,
     .caption = "Import_Button_ComposeAgain",
     .across = Anchor::kEnd},
};

}  // namespace

EntryHints::EntryHints(WizardShell& shell, EntryPage& page) : shell_(shell), page_(page) {
  apply_design(*this, kDesign, &shell_.frmImp(4));
  labEdited.set_visible(false);
  labEdited.set_announced();
  labCodes.set_announced();
  cmdCompose.on_click = [this] { cmdCompose_Click(); };
  for (TextBox* code : {&page_.txtStateCode, &page_.txtOVW}) {
    code->on_change = [this] { codes_Change(); };
  }
  page_.on_edited = [this] { labEdited.set_visible(true); };
  page_.on_composed = [this] {
    composed_with_ = own_codes();
    codes_Change();
  };
}

void EntryHints::load_captions() { quenda::load_captions(*this, kDesign, shell_.app); }

OwnCodes EntryHints::own_codes() const {
  return {.country = page_.txtStateCode.text(), .area = page_.txtOVW.text()};
}

void EntryHints::codes_Change() {
  procedure(shell_.app.errors, "fMain.codes_Change", {}, [&] {
    const OwnCodes now = own_codes();
    App& app = shell_.app;
    const auto missing = [&app](const Label& name) {
      return concat("(!) ", name.caption(), " ", app.text("Import_Label_IsMissing"));
    };
    labCodes.set_caption(!country_code_complete(now.country) ? missing(page_.labStateCode)
                         : !own_codes_complete(now.country, now.area)
                             ? missing(page_.labOVW)
                             : app.text("Import_Label_CodesPurpose"));
    cmdCompose.set_enabled(now != composed_with_);
  }).or_go_on();
}

void EntryHints::cmdCompose_Click() {
  procedure(shell_.app.errors, "fMain.cmdCompose_Click", {}, [&] {
    if (on_compose) on_compose();
  }).or_go_on();
}

}  // namespace quenda

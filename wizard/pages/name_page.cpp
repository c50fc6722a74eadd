#include "wizard/pages/name_page.h"

#include <vector>

#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/text.h"
#include "wizard/shell/design.h"
#include "wizard/shell/pasted_text.h"

namespace quenda {
namespace {

constexpr DesignRow<NamePage> kDesign[] = {
    {.control = control_at<&NamePage::labHeadName>,
     .place = {0, 60, 2340, 255},
     .tab = 30,
     .caption = "Import_Label_NameInfo",
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::txtHeadName>,
     .place = {2520, 15, 4200, 345},
     .tab = 31,
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::chkFlip>,
     .place = {6900, 45, 3540, 300},
     .tab = 32,
     .caption = "Import_ChkBox_FlipNames",
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::labHeadNumber>,
     .place = {2520, 570, 4200, 255},
     .caption = "Import_Label_NumberInfo",
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::labNameExt>,
     .place = {6900, 570, 3540, 255},
     .caption = "Import_Label_NameExt",
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::labHead, 0>,
     .place = {0, 915, 2340, 255},
     .tab = 33,
     .caption = "Import_String_PhoneNumber",
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::txtHead, 0>,
     .place = {2520, 870, 4200, 345},
     .tab = 34,
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::txtIndex, 0>,
     .place = {6900, 870, 3540, 345},
     .tab = 35,
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::labHead, 1>,
     .place = {0, 1365, 2340, 255},
     .tab = 36,
     .caption = "Import_String_PhoneNumber",
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::txtHead, 1>,
     .place = {2520, 1320, 4200, 345},
     .tab = 37,
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::txtIndex, 1>,
     .place = {6900, 1320, 3540, 345},
     .tab = 38,
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::labHead, 2>,
     .place = {0, 1815, 2340, 255},
     .tab = 39,
     .caption = "Import_String_PhoneNumber",
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::txtHead, 2>,
     .place = {2520, 1770, 4200, 345},
     .tab = 40,
     .across = Anchor::kShare},
    {.control = control_at<&NamePage::txtIndex, 2>,
     .place = {6900, 1770, 3540, 345},
     .tab = 41,
     .across = Anchor::kShare},
};

}  // namespace

NamePage::NamePage(WizardShell& shell, const ColumnPage& columns)
    : WizardPage(shell), columns_(columns) {
  shell_.set_page(Page::kNames, *this);
  design();
  connect();
}

void NamePage::design() {
  apply_design(*this, kDesign, &shell_.frmImp(2));
  for (TextBox* preview : {&txtHeadName, &txtHead(0), &txtHead(1), &txtHead(2)}) {
    preview->set_locked(true);
    preview->set_back_color(BackColor::kButtonFace);
  }
}

void NamePage::connect() {
  chkFlip.on_click = [this] { chkFlip_Click(); };
  for (const auto& box : txtIndex) {
    box->on_change = [&box = *box] { keep_separators_out(box); };
    box->on_key_press = [this](std::int16_t& code) { txtIndex_KeyPress(code); };
  }
}

void NamePage::load_captions() {
  quenda::load_captions(*this, kDesign, app_);
  for (const auto& label : labHead) {
    label->set_caption(concat(label->caption(), " ", std::to_string(label->index() + 1)));
  }
  for (const auto& box : txtIndex) {
    box->set_spoken_name(concat(shell_.texts["String_Number"], " ",
                                std::to_string(box->index() + 1), ": ", labNameExt.caption()));
  }
}

void NamePage::offer_suffixes(ImportSettings& settings) const { settings.name_ext = suffixes(); }

void NamePage::load(const ImportSettings& settings) {
  skip_faults({[&] { chkFlip.set_value(settings.name_flip); }});
  for (const auto& box : txtIndex) {
    skip_faults(
        {[&] { box->set_text(settings.name_ext.at(static_cast<std::size_t>(box->index()))); }});
  }
}

void NamePage::save(ImportSettings& settings) const {
  settings.name_flip = chkFlip.value();
  settings.name_ext = suffixes();
}

std::array<std::string, kNumberRows> NamePage::suffixes() const {
  return {txtIndex(0).text(), txtIndex(1).text(), txtIndex(2).text()};
}

void NamePage::HeaderFillName() {
  filled_ = procedure(app_.errors, "fMain.HeaderFillName", {}, [&] {
    pClearName();
    std::vector<std::string> names = columns_.chosen_names(kNames);
    names.resize(2);
    const bool both = !names[0].empty() && !names[1].empty();
    chkFlip.set_enabled(both);
    if (!both) chkFlip.set_ticked(false);
    txtHeadName.set_text(compose_name(names[0], names[1], chkFlip.ticked()));
    const std::vector<std::string> numbers = columns_.chosen_names(kNumbers);
    for (std::size_t row = 0; row < kNumberRows; ++row) {
      const int index = static_cast<int>(row);
      const bool used = row < numbers.size();
      txtHead(index).set_text(used ? numbers[row] : std::string());
      txtIndex(index).set_enabled(used);
      shell_.ObjectEnable(used, txtIndex, static_cast<std::int16_t>(index));
    }
  });
}

void NamePage::chkFlip_Click() {
  procedure(app_.errors, "fMain.chkFlip_Click", {}, [&] {
    if (!shell_.wizard.loading) HeaderFillName();
  }).or_go_on();
}

void NamePage::pClearName() {
  procedure(app_.errors, "fMain.pClearName", {}, [&] { txtHeadName.set_text(""); }).or_go_on();
}

void NamePage::txtIndex_KeyPress(std::int16_t& code) {
  procedure(app_.errors, "fMain.txtIndex_KeyPress", {code}, [&] {
    code = filter_key(code, KeyFilter::kNoSem);
  }).or_go_on();
}

}  // namespace quenda

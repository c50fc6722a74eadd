#include "book/pages/entry_page.h"

#include <algorithm>
#include <optional>

#include "book/entry_list.h"
#include "book/number_cleaning.h"
#include "book/pages/fOVWInput.h"
#include "platform/controls/events.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/entry_text.h"
#include "text/fault.h"
#include "text/text.h"
#include "wizard/shell/design.h"

namespace quenda {
namespace {

constexpr DesignRow<EntryPage> kDesign[] = {
    {.control = control_at<&EntryPage::labImpFinal>,
     .place = {0, 0, 2100, 255},
     .tab = 70,
     .caption = "Journal_Info_Items"},
    {.control = control_at<&EntryPage::lstImpFinal>,
     .place = {0, 285, 7320, 4665},
     .tab = 71,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&EntryPage::cmdEditItems>,
     .place = {7500, 285, 2940, 390},
     .tab = 72,
     .caption = "Menu_Edit",
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::cmdDel>,
     .place = {7500, 765, 2940, 390},
     .tab = 73,
     .caption = "Settings_Button_Remove",
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::labDelete>,
     .place = {7500, 1215, 2940, 480},
     .caption = "Import_Label_Delete",
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::frmAsk>,
     .place = {7500, 1710, 2940, 1680},
     .caption = "Import_Label_BehaviorExistNumber",
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::optAsk, 0>,
     .place = {150, 285, 2700, 420},
     .tab = 74,
     .caption = "Import_Option_AskDataSet",
     .frame = control_at<&EntryPage::frmAsk>},
    {.control = control_at<&EntryPage::optAsk, 1>,
     .place = {150, 735, 2700, 420},
     .tab = 75,
     .caption = "Import_Option_NewDataSet",
     .frame = control_at<&EntryPage::frmAsk>},
    {.control = control_at<&EntryPage::optAsk, 2>,
     .place = {150, 1185, 2700, 420},
     .tab = 76,
     .caption = "Import_Option_RetainDataSet",
     .frame = control_at<&EntryPage::frmAsk>},
    {.control = control_at<&EntryPage::labStateCode>,
     .place = {7500, 3555, 1560, 255},
     .tab = 77,
     .caption = "Settings_Label_CountryCode",
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::txtStateCode>,
     .place = {9120, 3510, 1320, 345},
     .tab = 78,
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::labOVW>,
     .place = {7500, 3960, 1560, 255},
     .tab = 79,
     .caption = "Import_Label_MissingAreaCode1",
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::txtOVW>,
     .place = {9120, 3915, 1320, 345},
     .tab = 80,
     .across = Anchor::kEnd},
    {.control = control_at<&EntryPage::labOVWhint>,
     .place = {7500, 4575, 2940, 420},
     .caption = "Import_Label_MissingAreaCode2",
     .across = Anchor::kEnd},
};

}  // namespace

EntryPage::EntryPage(WizardShell& shell) : WizardPage(shell) {
  shell_.set_page(Page::kEntries, *this);
  design();
  connect();
}

void EntryPage::design() {
  apply_design(*this, kDesign, &shell_.frmImp(4));
  lstImpFinal.set_columns({{"", 1950}, {"", 1400}, {"", 1690}, {"", 1960}}, kEntryColumns);
  lstImpFinal.set_sortable(true);
}

void EntryPage::connect() {
  lstImpFinal.on_double_click = [this] { lstImpFinal_DblClick(); };
  lstImpFinal.on_key_down = [this](std::int16_t code) { lstImpFinal_KeyDown(code); };
  cmdEditItems.on_click = [this] { cmdEditItems_Click(); };
  cmdDel.on_click = [this] { cmdDel_Click(); };
  for (const auto& option : optAsk) {
    option->on_click = [this, index = option->index()] { optAsk_Click(index); };
  }
}

void EntryPage::load_captions() {
  quenda::load_captions(*this, kDesign, app_);
  const MainTexts& texts = shell_.texts;
  lstImpFinal.set_column_heading(0, texts["String_Name"]);
  lstImpFinal.set_column_heading(1, texts["String_Number"]);
  lstImpFinal.set_column_heading(2, texts["String_Address"]);
}

void EntryPage::load(const ImportSettings& settings) {
  skip_faults({[&] { optAsk(settings.ask).choose(); }});
}

void EntryPage::save(ImportSettings& settings) const {
  for (const auto& option : optAsk) {
    if (option->chosen()) settings.ask = option->index();
  }
}

void EntryPage::drop_entries() {
  lstImpFinal.clear();
  removed_rows_.clear();
}

void EntryPage::expect_entries() {
  drop_entries();
  composed_ = Composed::kEntries;
  shell_.refresh_buttons();
}

void EntryPage::show_composed(Composed composed) {
  composed_ = composed;
  cmdDel.set_enabled(can_go_on() && lstImpFinal.count() > 0);
  cmdEditItems.set_enabled(cmdDel.enabled());
  show_count();
  if (on_composed) on_composed();
}

void EntryPage::show_count() {
  shell_.show_counts(lstImpFinal.count(), shell_.texts["Import_Info_ItemsValid"]);
}

std::string EntryPage::fCleanNumbers(std::string_view number) {
  std::string cleaned;
  procedure(app_.errors, "fMain.fCleanNumbers", {number}, [&] {
    cleaned = clean_number(number, txtStateCode.text());
  }).or_go_on();
  return cleaned;
}

std::string EntryPage::AddVW(std::string_view number) {
  std::string completed;
  procedure(app_.errors, "fMain.AddVW", {number}, [&] {
    completed = add_area_code(number, txtOVW.text());
  }).or_go_on();
  return completed;
}

bool EntryPage::CheckAreaCode() {
  return procedure(app_.errors, "fMain.CheckAreaCode", {}, [&] {
    if (own_codes_complete(txtStateCode.text(), txtOVW.text())) return;
    // Closing the dialog is no answer: it comes back with what was typed.
    std::optional<OwnCodes> typed;
    do {
      fOVWInput dialog(app_);
      if (typed) {
        dialog.txtLVW.set_text(typed->country);
        dialog.txtOVW.set_text(typed->area);
      }
      app_.machine.events.show_modal(dialog, shell_);
      if (shell_.wizard.abort) throw EndProgram();
      typed = OwnCodes{.country = dialog.txtLVW.text(), .area = dialog.txtOVW.text()};
      if (!dialog.answer) continue;
      txtOVW.set_text(dialog.answer->area);
      txtStateCode.set_text(dialog.answer->country);
    } while (!own_codes_acceptable(txtStateCode.text(), txtOVW.text()));
  });
}

void EntryPage::lstImpFinal_DblClick() {
  procedure(app_.errors, "fMain.lstImpFinal_DblClick", {}, [&] {
    const int row = lstImpFinal.selected();
    if (lstImpFinal.count() == 0 || row < 0) return;
    fImportItemEdit dialog(app_);
    const auto at = static_cast<std::size_t>(row);
    dialog.txtName.set_text(lstImpFinal.cell(at, kEntryName));
    dialog.txtNumber.set_text(lstImpFinal.cell(at, kEntryNumber));
    dialog.txtAdress.set_text(lstImpFinal.cell(at, kEntryAddress));
    dialog.SettVars(row);
    app_.machine.events.show_modal(dialog, shell_);
    edited = dialog.answer;
    ChangeItem();
  }).or_go_on();
}

void EntryPage::cmdEditItems_Click() {
  procedure(app_.errors, "fMain.cmdEditItems_Click", {}, [&] {
    lstImpFinal_DblClick();
  }).or_go_on();
}

void EntryPage::lstImpFinal_KeyDown(std::int16_t code) {
  procedure(app_.errors, "fMain.lstImpFinal_KeyDown", {code}, [&] {
    constexpr std::int16_t kDelete = 46;
    constexpr std::int16_t kEnter = 13;
    if (lstImpFinal.count() == 0) return;
    if (code == kDelete) cmdDel_Click();
    if (code == kEnter) lstImpFinal_DblClick();
  }).or_go_on();
}

void EntryPage::ChangeItem() {
  procedure(app_.errors, "fMain.ChangeItem", {}, [&] {
    if (edited.row == kNoRow) return;
    const auto row = static_cast<std::size_t>(edited.row);
    // What is pasted has not passed the key filters; a ";" would shift the fields of the book's
    // line.
    for (std::string* text : {&edited.name, &edited.address}) *text = entry_text(*text);
    edited.number = fCleanNumbers(entry_number(edited.number));
    lstImpFinal.set_cell(row, kEntryName, edited.name);
    lstImpFinal.set_cell(row, kEntryNumber, edited.number);
    lstImpFinal.set_cell(row, kEntryAddress, edited.address);
    if (on_row_changed) on_row_changed(row);
    if (on_edited) on_edited();
  }).or_go_on();
}

void EntryPage::cmdDel_Click() {
  procedure(app_.errors, "fMain.cmdDel_Click", {}, [&] {
    const int row = lstImpFinal.selected();
    if (row >= 0) {
      // As the rows are seen, which may be sorted.
      const std::size_t position = lstImpFinal.order().position_of(static_cast<std::size_t>(row));
      removed_rows_.note(lstImpFinal.table(), static_cast<std::size_t>(row));
      lstImpFinal.remove_row(static_cast<std::size_t>(row));
      if (on_row_removed) on_row_removed(static_cast<std::size_t>(row));
      if (on_edited) on_edited();
      const std::size_t count = lstImpFinal.count();
      if (count > 0) {
        // The row that moved up, or the last one when the last was removed.
        lstImpFinal.select(
            static_cast<int>(lstImpFinal.order().row_at(std::min(position, count - 1))));
        lstImpFinal.set_focus();
      }
      show_count();
    }
    if (lstImpFinal.count() > 0) return;
    cmdDel.set_enabled(false);
    cmdEditItems.set_enabled(false);
    composed_ = Composed::kNothing;
    shell_.refresh_buttons();
  }).or_go_on();
}

void EntryPage::optAsk_Click(int index) {
  procedure(app_.errors, "fMain.optAsk_Click", {index}, [&] {
    merge_mode = static_cast<MergeMode>(index);
    if (on_mode_chosen) on_mode_chosen();
  }).or_go_on();
}

}  // namespace quenda

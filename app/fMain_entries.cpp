#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "app/busy.h"
#include "app/fMain.h"
#include "book/entry_list.h"
#include "book/number_cleaning.h"
#include "book/pages/fImportItemEdit.h"
#include "platform/controls/events.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/entry_text.h"

namespace quenda {

std::string fMain::fCleanNumbers(std::string_view number) {
  std::string cleaned;
  procedure(app_.errors, "fMain.fCleanNumbers", {number}, [&] {
    cleaned = clean_number(number, txtStateCode.text());
  }).or_go_on();
  return cleaned;
}

std::string fMain::AddVW(std::string_view number) {
  std::string completed;
  procedure(app_.errors, "fMain.AddVW", {number}, [&] {
    completed = add_area_code(number, txtOVW.text());
  }).or_go_on();
  return completed;
}

void fMain::PreviewEntries() {
  procedure(app_.errors, "fMain.PreviewEntries", {}, [&] {
    const BusyWork busy(*this);
    lstImpFinal.clear();
    entries_.clear();
    const FlatTable& preview = lstImport.table();
    for (std::size_t row = 0; row < preview.rows(); ++row) {
      const std::string number = fCleanNumbers(preview.cell(row, kEntryNumber));
      entries_.add_row(
          std::array<std::string_view, kEntryColumns>{preview.cell(row, kEntryName), number,
                                                      preview.cell(row, kEntryAddress)},
          preview.origin(row));
      step(row + 1, preview.rows());
    }
    remove_repeated_lines(entries_, [this] { answer_events(); });
    ListUpdate();
  }).or_go_on();
}

void fMain::ListUpdate() {
  procedure(app_.errors, "fMain.ListUpdate", {}, [&] {
    lstImpFinal.clear();
    lstImpFinal.set_table(
        entry_rows(std::exchange(entries_, FlatTable(kEntryColumns)), chkNameLen.ticked(),
                   [this](std::size_t done, std::size_t total) { step(done, total); }));
  }).or_go_on();
}

void fMain::lstImpFinal_DblClick() {
  procedure(app_.errors, "fMain.lstImpFinal_DblClick", {}, [&] {
    const int row = lstImpFinal.selected();
    if (lstImpFinal.count() == 0 || row < 0) return;
    fImportItemEdit dialog(app_, *this);
    const auto at = static_cast<std::size_t>(row);
    dialog.txtName.set_text(lstImpFinal.cell(at, kEntryName));
    dialog.txtNumber.set_text(lstImpFinal.cell(at, kEntryNumber));
    dialog.txtAdress.set_text(lstImpFinal.cell(at, kEntryAddress));
    dialog.SettVars(row);
    app_.machine.events.show_modal(dialog, *this);
  }).or_go_on();
}

void fMain::cmdEditItems_Click() {
  procedure(app_.errors, "fMain.cmdEditItems_Click", {}, [&] {
    lstImpFinal_DblClick();
  }).or_go_on();
}

void fMain::lstImpFinal_KeyDown(std::int16_t code) {
  procedure(app_.errors, "fMain.lstImpFinal_KeyDown", {code}, [&] {
    constexpr std::int16_t kDelete = 46;
    constexpr std::int16_t kEnter = 13;
    if (lstImpFinal.count() == 0) return;
    if (code == kDelete) cmdDel_Click();
    if (code == kEnter) lstImpFinal_DblClick();
  }).or_go_on();
}

void fMain::ChangeItem() {
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
  }).or_go_on();
}

void fMain::cmdDel_Click() {
  procedure(app_.errors, "fMain.cmdDel_Click", {}, [&] {
    const int row = lstImpFinal.selected();
    if (row >= 0) {
      lstImpFinal.remove_row(static_cast<std::size_t>(row));
      const int count = static_cast<int>(lstImpFinal.count());
      if (count > 0) {
        // The row that moved up, or the last one when the last was removed.
        lstImpFinal.select(std::min(row, count - 1));
        lstImpFinal.set_focus();
      }
      show_counts(lstImpFinal.count(), texts.items_valid);
    }
    const bool rows_left = lstImpFinal.count() > 0;
    cmdDel.set_enabled(rows_left);
    cmdEditItems.set_enabled(rows_left);
    if (!rows_left) cmdFor.set_enabled(false);
  }).or_go_on();
}

void fMain::optAsk_Click(int index) {
  procedure(app_.errors, "fMain.optAsk_Click", {index}, [&] {
    merge_mode = static_cast<MergeMode>(index);
  }).or_go_on();
}

}  // namespace quenda

#include <string_view>

#include "app/fMain.h"
#include "book/number_cleaning.h"
#include "book/pages/fOVWInput.h"
#include "platform/controls/events.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"

namespace quenda {

void fMain::hide_pages() {
  const auto hide = [](Frame& frame) {
    frame.move_to(0, 0);
    frame.set_enabled(false);
    frame.set_visible(false);
  };
  for (const auto& frame : frmImp) hide(*frame);
  hide(frmImpOL);
}

void fMain::ShowSite(bool hide_only) {
  procedure(app_.errors, "fMain.ShowSite", {hide_only}, [&] {
    hide_pages();
    if (hide_only || wizard.CurrentPage > kEntryPage) return;
    if (wizard.CurrentPage < kFirstPage) wizard.CurrentPage = kFirstPage;
    Frame& page = frmImp(wizard.CurrentPage);
    page.set_enabled(true);
    page.set_visible(true);
    const bool preview = wizard.CurrentPage == 1 || wizard.CurrentPage == 2;
    lstShow.set_visible(preview);
    labShow.set_visible(preview);
    show_title(wizard.CurrentPage + 1);
  }).or_go_on();
}

void fMain::cmdFor_Click() {
  procedure(app_.errors, "fMain.cmdFor_Click", {}, [&] {
    PicProgress.set_visible(false);
    PicProgress.set_percent(0);
    cmdFor.set_enabled(false);
    if (source.FileChecked) {
      for (Control* control : source_controls()) control->set_enabled(false);
      if (!source.Delimiter.empty()) {
        StatusBar.set_panel(2, texts.field_convert);
        CSVclean();
        DatasetComplete();
      }
      if (wizard.abort) throw EndProgram();
      source.FileChecked = false;
      cmdFor_Click();
      return;
    }
    const PageStep next = step_forward(wizard.CurrentPage, source.kind());
    wizard.CurrentPage = static_cast<std::int16_t>(next.page);
    if (next.page < kWritePage) ShowSite();
    run_page_work(next.work);
  }).or_go_on();
}

void fMain::run_page_work(PageWork work) {
  switch (work) {
    case PageWork::kNone:
      break;
    case PageWork::kIspyLog:
      StatusBar.set_panel(2, texts.data_set_clean);
      ISpyImport();
      StatusBar.set_panel(2, "");
      finish_entry_page(true);
      break;
    case PageWork::kColumns:
      cmdBack.set_enabled(true);
      StatusBar.set_panel(2, texts.selection_prepare);
      LoadHeaderOptions();
      ImpHeader();
      break;
    case PageWork::kOutlook:
      CheckAreaCode();
      PreviewEntries();
      StatusBar.set_panel(2, "");
      finish_entry_page(true);
      break;
    case PageWork::kNames:
      HeaderFillName();
      cmdFor.set_enabled(true);
      break;
    case PageWork::kAddresses:
      HeaderFillAdress();
      SaveSelections();
      cmdFor.set_enabled(true);
      break;
    case PageWork::kEntries:
      enter_file_entries();
      break;
    case PageWork::kWrite:
      SaveOptions(source.kind() == Source::kFile);
      Add();
      break;
  }
}

void fMain::enter_file_entries() {
  CheckAreaCode();
  const RecordTable& records = source.ImportRows;
  const bool has_data =
      records.size() > 1 ||
      (records.size() == 1 && records[0].find_first_not_of(';') != std::string_view::npos);
  // A composition that failed half way leaves "forward" disabled: what it left is not the import.
  finish_entry_page(has_data && Scramble());
}

void fMain::finish_entry_page(bool importable) {
  cmdBack.set_enabled(true);
  cmdFor.set_enabled(importable);
  cmdDel.set_enabled(importable && lstImpFinal.count() > 0);
  cmdEditItems.set_enabled(cmdDel.enabled());
  cmdFor.set_caption(app_.shared_texts.Button_Resume);
  show_counts(lstImpFinal.count(), texts.items_valid);
}

void fMain::CheckAreaCode() {
  if (own_codes_complete(txtStateCode.text(), txtOVW.text())) return;
  do {
    fOVWInput dialog(app_, *this);
    app_.machine.events.show_modal(dialog, *this);
    if (wizard.abort) throw EndProgram();
  } while (!own_codes_acceptable(txtStateCode.text(), txtOVW.text()));
}

void fMain::cmdBack_Click() {
  procedure(app_.errors, "fMain.cmdBack_Click", {}, [&] {
    PicProgress.set_percent(0);
    cmdFor.set_caption(app_.shared_texts.Button_Next);
    switch (source.kind()) {
      case Source::kFile:
        --wizard.CurrentPage;
        if (wizard.CurrentPage > kFirstPage) {
          // Back from a book that could not be written: the next step is the writing again.
          if (wizard.CurrentPage == kEntryPage) cmdFor.set_caption(app_.shared_texts.Button_Resume);
          cmdFor.set_enabled(true);
          ShowSite();
        } else {
          return_to_source();
          for (Control* control : source_controls()) control->set_enabled(true);
          cmdOutlook.set_enabled(outlook_importable());
        }
        break;
      case Source::kOutlook:
        if (frmImpOL.visible()) {
          source.IsOutlookSource = false;
          return_to_source();
        } else {
          ShowSite(true);
          wizard.CurrentPage = kFirstPage;
          show_outlook_page();
          cmdFor.set_enabled(lstImport.count() > 0);
        }
        break;
      case Source::kIspy:
        return_to_source();
        break;
    }
  }).or_go_on();
}

void fMain::return_to_source() {
  for (const int panel : {1, 2, 3}) StatusBar.set_panel(panel, "");
  wizard.CurrentPage = kFirstPage;
  cmdFor.set_enabled(false);
  cmdBack.set_enabled(false);
  txtImpFile.set_text("");
  ShowSite();
}

std::array<Control*, 4> fMain::source_controls() {
  return {&cmdFile, &cmdIspy, &cmdOutlook, &txtImpFile};
}

}  // namespace quenda

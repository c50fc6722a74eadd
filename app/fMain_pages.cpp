#include <string_view>

#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"

// From page to page: "Weiter", "Zurück", and the work that a step brings with it.
namespace quenda {

void fMain::cmdFor_Click() {
  procedure(app_.errors, "fMain.cmdFor_Click", {}, [&] {
    PicProgress.set_visible(false);
    PicProgress.set_percent(0);
    begin_step();
    if (source.FileChecked) clean_file();
    const PageStep next = step_forward(wizard.CurrentPage, source.kind());
    wizard.CurrentPage = next.page;
    if (next.page != Page::kWrite) ShowSite();
    run_page_work(next.work);
  }).or_go_on();
}

void fMain::clean_file() {
  open_choice(false);
  if (!source.Delimiter.empty()) {
    StatusBar.set_panel(2, texts["Import_Info_FieldConvert"]);
    CSVclean();
    DatasetComplete();
  }
  if (wizard.abort) throw EndProgram();
  source.FileChecked = false;
}

void fMain::run_page_work(PageWork work) {
  switch (work) {
    case PageWork::kNone:
      break;
    case PageWork::kIspyLog:
      StatusBar.set_panel(2, texts["Import_Info_DataSetClean"]);
      show_composed(ISpyImport() ? Composed::kEntries : Composed::kFailed);
      StatusBar.set_panel(2, "");
      break;
    case PageWork::kColumns:
      StatusBar.set_panel(2, texts["Import_Info_SelectionPrepare"]);
      LoadHeaderOptions();
      ImpHeader();
      break;
    case PageWork::kOutlook:
      CheckAreaCode();
      show_composed(PreviewEntries() ? Composed::kEntries : Composed::kFailed);
      StatusBar.set_panel(2, "");
      break;
    case PageWork::kNames:
      HeaderFillName();
      break;
    case PageWork::kAddresses:
      HeaderFillAdress();
      SaveSelections();
      break;
    case PageWork::kEntries:
      enter_file_entries();
      break;
    case PageWork::kWrite:
      SaveOptions(source.kind() == Source::kFile);
      Add();
      break;
  }
  refresh_buttons();
}

void fMain::enter_file_entries() {
  CheckAreaCode();
  const RecordTable& records = source.ImportRows;
  const bool has_data =
      records.size() > 1 ||
      (records.size() == 1 && records[0].find_first_not_of(';') != std::string_view::npos);
  // A composition that failed half way leaves "forward" disabled: what it left is not the import.
  show_composed(!has_data    ? Composed::kNothing
                : Scramble() ? Composed::kEntries
                             : Composed::kFailed);
}

void fMain::cmdBack_Click() {
  procedure(app_.errors, "fMain.cmdBack_Click", {}, [&] {
    PicProgress.set_percent(0);
    switch (source.kind()) {
      case Source::kFile:
        wizard.CurrentPage = page_before(wizard.CurrentPage);
        if (wizard.CurrentPage == Page::kSource) {
          return_to_source();
          open_choice(true);
        } else {
          ShowSite();
        }
        break;
      case Source::kOutlook:
        if (wizard.on_outlook_page) {
          source.IsOutlookSource = false;
          return_to_source();
        } else {
          wizard.CurrentPage = Page::kSource;
          ShowSite(true);
          show_outlook_page();
        }
        break;
      case Source::kIspy:
        return_to_source();
        break;
    }
    refresh_buttons();
  }).or_go_on();
}

void fMain::return_to_source() {
  clear_panels();
  wizard.CurrentPage = Page::kSource;
  ShowSite();
  txtImpFile.set_text("");
}

}  // namespace quenda

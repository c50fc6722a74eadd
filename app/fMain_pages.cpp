#include <string>
#include <string_view>

#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"

// From page to page: "Weiter", "Zurück", and the work that a step brings with it.
namespace quenda {
namespace {

/// What a composition that failed half way left is not the import.
Composed outcome_of(bool came_through) {
  return came_through ? Composed::kEntries : Composed::kFailed;
}

}  // namespace

void fMain::cmdFor_Click() {
  const bool came_through = procedure(app_.errors, "fMain.cmdFor_Click", {}, [&] {
    PicProgress.set_visible(false);
    PicProgress.set_percent(0);
    begin_step();
    if (source.FileChecked) clean_file();
    const PageStep next = step_forward(wizard.CurrentPage, source.kind());
    wizard.CurrentPage = next.page;
    if (next.page != Page::kWrite) ShowSite();
    run_page_work(next.work);
  });
  // A step that failed leaves the way on closed, also where it had been opened before its work.
  if (!came_through) begin_step();
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
  if (work != PageWork::kWrite) labEdited.set_visible(false);
  switch (work) {
    case PageWork::kNone:
      break;
    case PageWork::kIspyLog:
      expect_entries();
      StatusBar.set_panel(2, texts["Import_Info_DataSetClean"]);
      show_composed(outcome_of(ISpyImport()));
      StatusBar.set_panel(2, "");
      break;
    case PageWork::kColumns:
      StatusBar.set_panel(2, texts["Import_Info_SelectionPrepare"]);
      LoadHeaderOptions();
      ImpHeader();
      break;
    case PageWork::kOutlook:
      expect_entries();
      show_composed(outcome_of(CheckAreaCode() && PreviewEntries()));
      StatusBar.set_panel(2, "");
      break;
    case PageWork::kNames:
      StatusBar.set_panel(2, "");
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
      EntryResults::make_room();
      Add();
      // Only after a failure the wizard is still here.
      EntryResults::renew();
      StatusBar.set_panel(2, "");
      break;
  }
  refresh_buttons();
}

void fMain::compose_again() {
  begin_step();
  switch (source.kind()) {
    case Source::kFile:
      return run_page_work(PageWork::kEntries);
    case Source::kOutlook:
      return run_page_work(PageWork::kOutlook);
    case Source::kIspy:
      return run_page_work(PageWork::kIspyLog);
  }
}

void fMain::enter_file_entries() {
  drop_entries();
  if (!CheckAreaCode()) return show_composed(Composed::kFailed);
  const RecordTable& records = source.ImportRows;
  const bool has_data =
      records.size() > 1 ||
      (records.size() == 1 && records[0].find_first_not_of(';') != std::string_view::npos);
  show_composed(has_data ? outcome_of(Scramble()) : Composed::kNothing);
}

void fMain::cmdBack_Click() {
  procedure(app_.errors, "fMain.cmdBack_Click", {}, [&] {
    PicProgress.set_percent(0);
    StatusBar.set_panel(2, "");
    if (wizard.CurrentPage == Page::kWrite) {
      // The book could not be written: the entries are still there, whatever they came from.
      wizard.CurrentPage = Page::kEntries;
      ShowSite();
      show_page_state();
      refresh_buttons();
      return;
    }
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
    show_page_state();
    refresh_buttons();
  }).or_go_on();
}

/// Panel 3 on a page that is come back to: what is on it, or how the link stands.
void fMain::show_page_state() {
  if (wizard.on_outlook_page)
    return show_counts(lstImport.count(), texts["Import_Info_ItemsForImport"]);
  if (wizard.CurrentPage == Page::kEntries) return show_count();
  StatusBar.set_panel(3, wizard.link_open ? texts["Import_Info_DDEactive"] : std::string());
}

void fMain::return_to_source() {
  clear_panels();
  wizard.CurrentPage = Page::kSource;
  ShowSite();
  txtImpFile.set_text("");
}

}  // namespace quenda

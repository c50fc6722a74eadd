#include <string>
#include <vector>

#include "app/account/import_account.h"
#include "app/account/report_file.h"
#include "app/fMain.h"
#include "book/pages/fImportReport.h"
#include "book/report_rows.h"
#include "platform/controls/events.h"
#include "platform/dialogs.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "wizard/shell/busy.h"

// The report of the last page, before anything is written.
namespace quenda {

void fMain::show_report() {
  EntryResults::make_room();
  // A book that cannot be read has its rows told as unread.
  look_ahead();
  const AccountInput input = account_input();
  ReportRows rows([&input](std::size_t row) { return told_of_row(input, row); });
  const bool has_lines = source.kind() != Source::kOutlook;
  {
    const BusyWork busy(*this);
    const std::size_t records = has_lines ? source.ImportRows.size() : contacts().rows();
    account_for(input, [&](const ReportRow& row) {
      rows.add(row);
      step(row.record, records);
    });
  }
  StatusBar.set_panel(2, "");
  fImportReport dialog(app_, rows, has_lines);
  dialog.on_save = [&] { save_report(dialog); };
  app_.machine.events.show_modal(dialog, *this);
  if (wizard.abort) throw EndProgram();
  last_merge_.reset();
  if (dialog.answer) {
    lstImpFinal.select(static_cast<int>(*dialog.answer));
    lstImpFinal.set_focus();
  }
  EntryResults::renew();
}

void fMain::save_report(fImportReport& dialog) {
  const ChosenFile chosen = app_.machine.dialogs.save_file(
      {{"CSV *.csv", "*.csv"}, {"JSON *.json", "*.json"}}, app_.text("Import_Report_FileName"));
  if (chosen.path.empty()) {
    if (!chosen.unusable.empty()) tell_no_report(chosen.unusable);
    return;
  }
  const std::string file = source.kind() == Source::kOutlook ? "" : txtImpFile.text();
  const ReportFile report(chosen.path);
  const bool possible =
      report.trouble(app_.machine.files, file, app_.paths.book_file()) == ReportTrouble::kNone;
  dialog.lock_input(true);
  const bool written = possible && write_report_to(chosen.path, true);
  dialog.lock_input(false);
  if (!written) tell_no_report(chosen.path);
}

}  // namespace quenda

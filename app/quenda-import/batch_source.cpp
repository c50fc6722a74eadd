#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/quenda-import/batch_steps.h"
#include "platform/files.h"
#include "sources/delimited_text.h"
#include "sources/file_facts.h"
#include "support/procedure.h"
#include "text/literal_1252.h"
#include "text/text.h"
#include "wizard/shell/finding_text.h"

// From the options to the composed entries: the source and the choices on the pages.
namespace quenda {

void BatchRun::check_suite() {
  if (options_.suite.empty()) return;
  const std::string folder = system_.program_folder();
  const Files& files = machine_.files;
  if (!files.has_folder(folder)) {
    refuse(concat("Den Ordner \"", folder, "\" (--suite) gibt es nicht."));
  }
  const bool suite = files.exists(concat(folder, "\\Quendapaths.ini")) ||
                     files.exists(concat(folder, "\\Quendaspec.ini")) ||
                     files.has_folder(concat(folder, "\\base")) ||
                     files.has_folder(concat(folder, "\\data"));
  if (!suite) {
    refuse(concat("Der Ordner \"", folder, u8"\" (--suite) enthält keine Suite: "_de,
                  "weder Quendapaths.ini noch Quendaspec.ini, base oder data."));
  }
}

void BatchRun::take_file() {
  check_file();
  main_.txtImpFile.set_text(options_.file);
  if (!main_.file_read())
    refuse(concat("Die Datei \"", options_.file, "\" kann nicht gelesen werden."));
  const std::vector<Finding> findings = file_findings(main_.source.facts, main_.converts());
  if (main_.chkConvert.ticked() && !main_.source.facts.readable() && !main_.source.IsISpyFile) {
    refuse(text_of(app_, findings.front()));
  }
  warn(findings);
  if (main_.source.IsISpyFile) return;
  if (options_.delimiter && main_.cmbLimiter.enabled()) {
    main_.cmbLimiter.set_list_index(*options_.delimiter);
  }
  if (!main_.cmdFor.enabled()) {
    refuse(concat(main_.labLimError.caption(), u8" (--delimiter gibt es vor.)"_de));
  }
}

void BatchRun::check_file() {
  const std::string named = concat("\"", options_.file, "\"");
  std::optional<bool> there;
  skip_faults({[&] { there = machine_.files.has_file(options_.file); }});
  if (!there) refuse(concat(named, " ist keine Datei, die gelesen werden kann."));
  if (!*there) refuse(concat("Die Datei ", named, " gibt es nicht."));
  // A log nobody has called yet is read like any other.
  const bool nothing = machine_.files.size(options_.file) == 0;
  if (nothing && !is_ispy_log(options_.file)) refuse(concat("Die Datei ", named, " ist leer."));
}

void BatchRun::warn(const std::vector<Finding>& findings) {
  for (const Finding& finding : findings) {
    say(concat("Warnung: ", text_of(app_, finding)));
  }
}

void BatchRun::take_outlook() {
  main_.tmOLcheck.take_tick();
  if (!main_.cmdOutlook.enabled()) refuse(main_.labOLver.caption());
  main_.cmdOutlook.take_user_click();
  if (!main_.contacts_read()) refuse(main_.StatusBar.panel(2));
  if (!main_.cmdFor.enabled()) refuse(concat("Outlook: ", main_.texts["Import_Info_DataNotFound"]));
}

void BatchRun::choose_columns() {
  if (options_.columns_given() || options_.auto_columns) app_.settings.selections = {};
  go_on(Page::kColumns);
  if (main_.header().size() > kMostFields) {
    refuse(concat("Die Datei hat mehr als ", std::to_string(kMostFields), " Spalten."));
  }
  const ImportSource& source = main_.source;
  warn(table_findings(main_.table_facts(), source.lines));
  warn(loss_findings(source.losses, source.lines));
  if (options_.auto_columns) {
    if (!main_.take_suggestion()) {
      refuse(u8"Die Kopfzeile der Datei ist von keinem bekannten Export (--columns auto)."_de);
    }
    const std::vector<ColumnNumbers> unchosen = main_.unchosen_numbers();
    warn(unchosen_findings(unchosen));
    for (const ColumnNumbers& column : unchosen) {
      report_.head.unchosen.emplace_back(column.heading, column.count);
    }
  }
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) select_columns(kind);
  if (!main_.cmdFor.enabled()) refuse_columns();
}

void BatchRun::select_columns(std::size_t kind) {
  ListBox& list = main_.lstHeader(static_cast<int>(kind));
  for (const std::string& text : options_.columns.at(kind)) {
    int position = 0;
    while (position < list.count() && list.item(position) != text) ++position;
    if (position == list.count()) {
      refuse(concat("Die Datei hat keine Spalte \"", text, "\"."));
    }
    list.set_selected(position, true);
  }
}

void BatchRun::refuse_columns() {
  const int names = main_.lstHeader(kNames).selected_count();
  const int numbers = main_.lstHeader(kNumbers).selected_count();
  if (names == 0) refuse(u8"Es ist keine Spalte für den Namen ausgewählt (--name)."_de);
  if (numbers == 0) refuse(u8"Es ist keine Spalte für eine Nummer ausgewählt (--number)."_de);
  if (names > kMostColumns[kNames])
    refuse(u8"Es sind zu viele Spalten für den Namen ausgewählt."_de);
  refuse(u8"Es sind zu viele Spalten für Nummern ausgewählt."_de);
}

void BatchRun::choose_names() {
  go_on(Page::kNames);
  if (options_.flip_name) main_.chkFlip.set_ticked(*options_.flip_name);
  for (std::size_t row = 0; row < options_.suffixes.size(); ++row) {
    if (!options_.suffixes[row]) continue;
    TextBox& box = main_.txtIndex(static_cast<int>(row));
    box.set_text("");
    box.type(*options_.suffixes[row]);
  }
}

void BatchRun::choose_addresses() {
  go_on(Page::kAddresses);
  if (options_.address_order) {
    if (*options_.address_order < main_.cmbFlipAdress.count()) {
      main_.cmbFlipAdress.set_list_index(*options_.address_order);
    } else {
      say(concat("Warnung: Die Adresse hat keine Reihenfolge ",
                 std::to_string(*options_.address_order), "; es bleibt bei der ersten."));
    }
  }
  const ControlArray<CheckBox>* const rows[] = {&main_.chk1, &main_.chk2, &main_.chk3};
  for (std::size_t row = 0; row < options_.bindings.size(); ++row) {
    if (!options_.bindings[row]) continue;
    for (const auto& box : *rows[row]) box->set_ticked(false);
    if (const int address = *options_.bindings[row]; address > 0) {
      (*rows[row])(address - 1).set_ticked(true);
    }
  }
}

}  // namespace quenda

#include "app/quenda-import/batch_run.h"

#include <array>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/account/report_file.h"
#include "app/fMain.h"
#include "app/quenda-import/console_services.h"
#include "app/quenda-import/printable.h"
#include "book/entry_list.h"
#include "book/pages/fImportMsg.h"
#include "platform/files.h"
#include "settings/app.h"
#include "sources/delimited_text.h"
#include "sources/file_facts.h"
#include "sources/file_findings.h"
#include "sources/table_facts.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"
#include "wizard/shell/finding_text.h"

namespace quenda {
namespace {

// How long a run waits for another one at the same book, and how often it merges into a book that
// others keep changing.
constexpr std::uint32_t kSecondsForOthers = 30;
constexpr int kMostMerges = 4;
// Columns are counted in 16 bits.
constexpr int kMostColumnsOfFile = 32767;

/// One run: the services of the terminal, the forms, and the user who knows beforehand what to do.
class BatchRun {
 public:
  BatchRun(const BatchOptions& options, const BatchMachine& machine, const BatchConsole& console);

  /// Does everything up to the end of the program.
  void run();
  [[nodiscard]] int status() const { return status_; }

 private:
  /// Says why the run ends, and ends it.
  [[noreturn]] void refuse(std::string_view message);
  void say(std::string_view message);

  /// Refuses a folder that is no suite's: the entries would go into a book somewhere else.
  void check_suite();
  /// A result that nobody gets is none: the status says so then.
  void check_output();
  void check_file();
  void take_file();
  void take_outlook();
  void warn(const std::vector<Finding>& findings);
  void choose_columns();
  void select_columns(std::size_t kind);
  [[noreturn]] void refuse_columns();
  void choose_names();
  void choose_addresses();
  /// Names entries whose text would be taken for a contact card when the book is read.
  void warn_about_cards();
  void write_or_show();
  /// Takes the last import back and ends the run.
  [[noreturn]] void undo();
  /// Nobody else of this kind is at the book as long as this lives.
  [[nodiscard]] std::unique_ptr<FileLock> lock_book();
  /// Merges the entries into the book, anew when it changes meanwhile.
  void write();
  void answer(Form& form);
  void answer_double(fImportMsg& dialog);
  /// The report that the settings want where no option does.
  void take_report_of_settings();
  /// Says why the report cannot be written where it is wanted, and ends the run.
  void check_report(std::string_view book);
  /// Tells what became of every number of the source, where that is asked for.
  void give_account();
  [[nodiscard]] std::string account_result() const;
  [[nodiscard]] std::vector<std::pair<std::string, std::string>> options_that_held() const;
  /// Presses "Weiter"; the page that comes has to be the given one.
  void go_on(Page page);

  const BatchOptions& options_;
  const BatchMachine& machine_;
  const BatchConsole& console_;
  int status_ = kExitRefused;
  std::string told_;       // what the last fault meant for the book
  bool composed_ = false;  // or tried to, as far as that went
  ReportFile report_;

  ProgressLine progress_;
  ConsoleDialogs dialogs_;
  ConsoleEvents events_;
  ConsoleLink link_;
  SuiteSystem system_;
  App app_;
  fMain main_;
};

std::string without_trailing_separator(std::string folder) {
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  return folder;
}

BatchRun::BatchRun(const BatchOptions& options, const BatchMachine& machine,
                   const BatchConsole& console)
    : options_(options),
      machine_(machine),
      console_(console),
      report_(options.report.value_or("")),
      progress_(console.errors),
      dialogs_(console.errors, progress_),
      events_(machine.clock),
      system_(machine.system, options.suite.empty() ? machine.system.program_folder()
                                                    : without_trailing_separator(options.suite)),
      app_(Machine{machine.files, machine.clock, events_, dialogs_, system_, link_,
                   machine.automation}),
      main_(app_) {
  app_.ini.write_protection = true;
  app_.errors.on_report = [this](std::string_view procedure, const RuntimeFault& fault,
                                 std::string_view parameters) {
    told_ = fault.addition();
    say(concat(procedure, ": Fehler ", std::to_string(fault.number()), " ", fault.description(),
               parameters.empty() ? "" : " - ", parameters, told_.empty() ? "" : ". ", told_));
  };
  // The log that the wizard's box names is not written; what happened stands here. A book that
  // others have changed is merged into anew without anybody pressing "Übernehmen".
  dialogs_.known = [this](std::string_view text) {
    return text == told_ || text == main_.texts["Import_Msg_BookChanged"] ||
           text.find(clsErrorHandling::FileLogError()) != text.npos;
  };
  events_.on_modal = [this](Form& form, Form& /*owner*/) { answer(form); };
  if (console.progress && !options.quiet) {
    events_.on_progress = [this] {
      progress_.show(main_.StatusBar.panel(2), main_.PicProgress.percent());
    };
  }
}

void BatchRun::run() {
  try {
    check_report("");
    main_.wizard.account_wanted = report_.wanted() || options_.strict;
    check_suite();
    main_.Form_Load();
    if (const std::string& file = app_.ini.unreadable(); !file.empty()) {
      refuse(concat("Ohne die Einstellungen in \"", file, "\" wird nichts eingelesen."));
    }
    if (options_.undo) undo();
    take_report_of_settings();
    check_report(app_.paths.book_file());
    if (options_.backup) main_.chkBackup.set_ticked(true);
    if (options_.existing) main_.optAsk(*options_.existing).choose();
    if (options_.convert) main_.chkConvert.set_ticked(*options_.convert);
    if (options_.min_name) main_.chkNameLen.set_ticked(*options_.min_name);
    if (options_.country) main_.txtStateCode.set_text(*options_.country);
    if (options_.area) main_.txtOVW.set_text(*options_.area);
    if (options_.outlook) {
      take_outlook();
    } else {
      take_file();
    }
    if (main_.source.kind() == Source::kFile) {
      choose_columns();
      choose_names();
      choose_addresses();
    }
    go_on(Page::kEntries);
    composed_ = true;
    write_or_show();
  } catch (const EndProgram&) {
    // The forms end the program in the end, and whenever they have to.
  }
  progress_.clear();
  if (main_.book_line_end == LineEnd::kLf) {
    say(u8"Warnung: Das Telefonbuch hat LF statt CR LF am Ende seiner Zeilen."_de);
  }
  if (!link_.result().empty()) status_ = kExitDone;
  give_account();
  if (!link_.result().empty()) console_.out << link_.result() << '\n';
  check_output();
}

void BatchRun::take_report_of_settings() {
  // The form would write it by itself, and of a run that came through only.
  const std::string path = std::exchange(main_.result_settings.report, {});
  if (options_.report || path.empty()) return;
  report_ = ReportFile(path);
  main_.wizard.account_wanted = true;
}

void BatchRun::check_report(std::string_view book) {
  const ReportTrouble trouble = report_.trouble(machine_.files, options_.file, book);
  if (trouble == ReportTrouble::kNone) return;
  const std::string path = concat("\"", report_.path(), "\"");
  report_ = ReportFile("");
  main_.wizard.account_wanted = false;
  switch (trouble) {
    case ReportTrouble::kIsSource:
      refuse(concat(u8"Der Bericht würde die Quelle überschreiben: "_de, path));
    case ReportTrouble::kIsBook:
      refuse(concat(u8"Der Bericht würde das Telefonbuch überschreiben: "_de, path));
    default:
      refuse(concat("Der Bericht kann nicht geschrieben werden: ", path));
  }
}

std::string BatchRun::account_result() const {
  if (!options_.dry_run) return link_.result().empty() ? "refused" : std::string(link_.result());
  const MergeRun* const run = main_.last_merge();
  if (status_ != kExitDone || run == nullptr || run->end == MergeRun::End::kFailed)
    return "refused";
  // What a question would be answered is not known, and without a terminal nobody would answer.
  const bool asked = report_.head.fates[static_cast<std::size_t>(Fate::kAsked)] > 0;
  if (asked && console_.answers == nullptr) return "refused";
  return run->end == MergeRun::End::kToBeWritten ? "data" : "nodata";
}

std::vector<std::pair<std::string, std::string>> BatchRun::options_that_held() const {
  const auto yes_no = [](bool yes) { return std::string(yes ? "yes" : "no"); };
  constexpr std::array kExisting = {"ask", "new", "keep"};
  std::vector<std::pair<std::string, std::string>> held;
  if (!options_.outlook) held.emplace_back("convert", yes_no(main_.source.converted));
  if (options_.auto_columns) held.emplace_back("columns", "auto");
  for (std::size_t mode = 0; mode < kExisting.size(); ++mode) {
    if (main_.optAsk(static_cast<int>(mode)).chosen()) {
      held.emplace_back("existing", kExisting.at(mode));
    }
  }
  held.emplace_back("min-name", yes_no(main_.chkNameLen.ticked()));
  held.emplace_back("country", main_.txtStateCode.text());
  held.emplace_back("area", main_.txtOVW.text());
  if (main_.chkBackup.ticked()) held.emplace_back("backup", "yes");
  return held;
}

void BatchRun::give_account() {
  if (!main_.wizard.account_wanted) return;
  ReportHead& head = report_.head;
  head.version = app_.version();
  head.file = options_.file;
  head.source = options_.outlook ? "outlook" : main_.source.IsISpyFile ? "ispy" : "file";
  head.dry_run = options_.dry_run;
  head.options = options_that_held();
  if (composed_) {
    // A run that was refused half way is told as what it would have done.
    if (link_.result().empty() && !main_.composition_failed()) main_.look_ahead();
    head.records = main_.account([this](const ReportRow& row) { report_.add(row); });
  }
  head.result = account_result();
  progress_.clear();
  if (composed_) say(fate_summary(report_.fates()));
  if (status_ == kExitDone && options_.strict && count_lost(report_.fates()) > 0) {
    status_ = kExitNumbersLost;
  }
  if (report_.on_terminal()) {
    console_.out << report_.text();
  } else if (report_.wanted()) {
    const bool written = procedure(app_.errors, "quenda-import.give_account", {},
                                   [&] { report_.write(machine_.files); });
    if (!written) status_ = kExitRefused;
  }
}

void BatchRun::check_output() {
  console_.out.flush();
  if ((status_ != kExitDone && status_ != kExitNumbersLost) || console_.out) return;
  status_ = kExitRefused;
  say(concat(u8"Das Ergebnis lässt sich nicht ausgeben. "_de,
             link_.result() == "data" ? "Das Telefonbuch ist geschrieben."
                                      : u8"Das Telefonbuch ist unverändert."_de));
}

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

void BatchRun::say(std::string_view message) {
  progress_.clear();
  console_.errors << "quenda-import: " << to_utf8(printable(message)) << '\n' << std::flush;
}

void BatchRun::refuse(std::string_view message) {
  say(message);
  throw EndProgram();
}

void BatchRun::go_on(Page page) {
  if (!main_.cmdFor.enabled()) refuse(u8"Der Assistent lässt es hier nicht weitergehen."_de);
  main_.cmdFor.take_user_click();
  if (main_.wizard.CurrentPage != page) refuse(u8"Die Datei kann nicht eingelesen werden."_de);
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
  if (main_.lstHeader(kNames).count() > kMostColumnsOfFile) {
    refuse(concat("Die Datei hat mehr als ", std::to_string(kMostColumnsOfFile), " Spalten."));
  }
  const ImportSource& source = main_.source;
  const char delimiter = source.Delimiter.front();
  warn(
      table_findings(look_at_table(source.ImportRows, delimiter, source.made_table), source.lines));
  warn(loss_findings(source.losses, source.lines));
  if (options_.auto_columns) {
    if (!main_.take_suggestion()) {
      refuse(u8"Die Kopfzeile der Datei ist von keinem bekannten Export (--columns auto)."_de);
    }
    const std::vector<UnchosenNumbers> unchosen = unchosen_numbers(
        main_.header(), source.ImportRows, delimiter, main_.ColumnPage::choice().numbers);
    warn(unchosen_findings(unchosen));
    for (const UnchosenNumbers& column : unchosen) {
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

void BatchRun::write_or_show() {
  if (!main_.cmdFor.enabled()) {
    refuse(main_.composition_failed() ? u8"Die Einträge konnten nicht zusammengestellt werden."_de
                                      : u8"Die Datei enthält nichts zum Einlesen."_de);
  }
  warn_about_cards();
  if (!options_.dry_run) {
    write();
    return;
  }
  progress_.clear();
  status_ = kExitDone;
  if (report_.on_terminal()) return;
  const FlatTable& rows = main_.lstImpFinal.table();
  const auto shown = [&](std::string_view cell) {
    const std::string line = on_one_line(cell);
    return console_.results_on_terminal ? printable(line) : line;
  };
  for (std::size_t row = 0; row < rows.rows(); ++row) {
    console_.out << to_utf8(concat(shown(rows.cell(row, kEntryName)), "\t",
                                   shown(rows.cell(row, kEntryNumber)), "\t",
                                   shown(rows.cell(row, kEntryAddress)), "\n"));
  }
}

void BatchRun::warn_about_cards() {
  constexpr std::size_t kMostShown = 10;
  const FlatTable& rows = main_.lstImpFinal.table();
  std::size_t found = 0;
  for (std::size_t row = 0; row < rows.rows(); ++row) {
    const std::string_view line = rows.line(row);
    if (line.find("[vcd(") == line.npos && line.find(")vcd]") == line.npos) continue;
    if (++found > kMostShown) continue;
    say(concat("Warnung: Eintrag ", std::to_string(row + 1), " (", rows.cell(row, kEntryName),
               u8") enthält Zeichen einer Kontaktkarte; das Telefonbuch liest sie als Karte."_de));
  }
  if (found > kMostShown) {
    say(concat(u8"Warnung: ebenso "_de, std::to_string(found - kMostShown),
               u8" weitere Einträge."_de));
  }
}

std::unique_ptr<FileLock> BatchRun::lock_book() {
  auto lock = machine_.files.lock(app_.paths.book_file(), kSecondsForOthers * 1000);
  if (lock) return lock;
  refuse(concat("Seit ", std::to_string(kSecondsForOthers),
                u8" Sekunden schreibt ein anderer Import in dieses Telefonbuch."_de));
}

void BatchRun::undo() {
  const auto lock = lock_book();
  if (main_.take_back_import() && link_.result().empty()) link_.set_text("nodata");
  throw EndProgram();
}

void BatchRun::write() {
  const auto lock = lock_book();
  // The last page stays usable when another program has changed the book meanwhile.
  for (int merged = 0; merged < kMostMerges && main_.cmdFor.enabled(); ++merged) {
    main_.cmdFor.take_user_click();
  }
  if (main_.cmdFor.enabled()) refuse(u8"Andere Programme ändern das Telefonbuch immerzu."_de);
}

void BatchRun::answer(Form& form) {
  if (auto* dialog = dynamic_cast<fImportMsg*>(&form)) {
    answer_double(*dialog);
    return;
  }
  refuse(concat(u8"Die eigene Landesvorwahl \""_de, main_.txtStateCode.text(),
                u8"\" oder Ortsvorwahl \""_de, main_.txtOVW.text(),
                u8"\" ist nicht vollständig (--country 0049 --area 030)."_de));
}

void BatchRun::answer_double(fImportMsg& dialog) {
  say(concat(dialog.labMsgNumber.caption(), "\n  ", u8"im Telefonbuch: "_de,
             dialog.labMsgIn.caption(), "\n  ", u8"neu:            "_de,
             dialog.labMsgNew.caption()));
  if (console_.answers == nullptr) {
    refuse(u8"Ohne Terminal kann nicht gefragt werden (--existing new oder --existing keep)."_de);
  }
  std::string answer;
  do {
    console_.errors << to_utf8(u8"b behalten, n neuen nehmen, B/N ebenso für alle weiteren? "_de)
                    << std::flush;
    if (!std::getline(*console_.answers, answer)) refuse(u8"Keine Antwort."_de);
  } while (answer != "b" && answer != "n" && answer != "B" && answer != "N");
  dialog.optAsk(answer == "B" || answer == "N" ? 1 : 0).choose();
  dialog.cmdMsg(answer == "b" || answer == "B" ? 0 : 1).take_user_click();
}

}  // namespace

int run_batch(const BatchOptions& options, const BatchMachine& machine,
              const BatchConsole& console) {
  BatchRun run(options, machine, console);
  run.run();
  return run.status();
}

}  // namespace quenda

#include "app/quenda-import/batch_run.h"

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "app/quenda-import/batch_steps.h"
#include "app/quenda-import/printable.h"
#include "book/book_entry.h"
#include "book/entry_list.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

// How long a run waits for another one at the same book, and how often it merges into a book that
// others keep changing.
constexpr std::uint32_t kSecondsForOthers = 30;
constexpr int kMostMerges = 4;

std::string without_trailing_separator(std::string folder) {
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  return folder;
}

}  // namespace

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
    // Nobody goes back to the pages; only an account has to look at the source once more.
    if (!main_.wizard.account_wanted) main_.source.give_up_text();
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
  if (!rows.may_have(kCardOpen) && !rows.may_have(kCardClose)) return;
  std::size_t found = 0;
  for (std::size_t row = 0; row < rows.rows(); ++row) {
    const std::string_view line = rows.line(row);
    if (line.find(kCardOpen) == line.npos && line.find(kCardClose) == line.npos) continue;
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

int run_batch(const BatchOptions& options, const BatchMachine& machine,
              const BatchConsole& console) {
  BatchRun run(options, machine, console);
  run.run();
  return run.status();
}

}  // namespace quenda

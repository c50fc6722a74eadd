#include <algorithm>
#include <string>

#include "app/backup/book_backup.h"
#include "app/fMain.h"
#include "book/book_change.h"
#include "book/book_entry.h"
#include "book/undo.h"
#include "book/unreadable_lines.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "settings/app.h"
#include "sources/file_findings.h"
#include "support/procedure.h"
#include "text/date_text.h"
#include "text/fault.h"
#include "text/text.h"
#include "wizard/shell/busy.h"

// The copy of the book before it is written, and the way back to it.
namespace quenda {
namespace {

/// "Falk 0305550123, Mayr 0431555017 ..."
std::string names_of(const std::vector<std::string>& lines) {
  constexpr std::size_t kMostShown = 10;
  std::string names;
  for (std::size_t i = 0; i < std::min(lines.size(), kMostShown); ++i) {
    const std::string_view name = std::string_view(lines[i]).substr(0, lines[i].find(';'));
    names += concat(i == 0 ? "" : ", ", name, " ", book_line_number(lines[i]));
  }
  return lines.size() > kMostShown ? concat(names, " ...") : names;
}

}  // namespace

BookBackup fMain::book_backup() {
  return {app_.machine.files,
          app_.paths.book_file(),
          {.book = book_texts(),
           .not_saved = app_.text("Import_Msg_BackupFailed"),
           .copy_is = app_.text("Import_Msg_BackupIs"),
           .record_damaged = app_.text("Import_Msg_UndoDamaged"),
           .keeps_changing = app_.text("Import_Msg_UndoBookKeepsChanging")}};
}

ReplaceResult fMain::replace_book(const MergeRun& run, const BookChange& change) {
  const std::string path = app_.paths.book_file();
  return app_.machine.files.replace_tail(path, {.old_text = run.book,
                                                .keep = change.keep(),
                                                .tail = &change,
                                                .texts = book_texts(),
                                                .spoil = &make_unreadable});
}

ReplaceResult fMain::back_up_and_replace(const MergeRun& run, const BookChange& change) {
  UndoHead head;
  const LocalTime now = app_.machine.clock.now();
  head.when = concat(date_text(now, ".", false, false), " ", time_text(now).substr(0, 5));
  head.before = mark_of(run.book);
  head.after = mark_of(std::string_view(run.book).substr(0, change.keep()));
  change.tell(0, change.size(), [&](std::string_view part) { head.after.add(part); });

  BookBackup backup = book_backup();
  backup.begin(now, run.book, run.has_book, [&](const std::string& copy) {
    head.copy = copy;
    UndoText text(head);
    text.add_merged(*run.list, *run.account);
    return std::move(text).finish();
  });
  return backup.carry_out(run.book, app_.settings.backup_count,
                          [&] { return replace_book(run, change); });
}

void fMain::show_way_back() { cmdUndo.set_visible(book_backup().has_import()); }

void fMain::ask_and_take_back() {
  BookBackup backup = book_backup();
  const std::string when = backup.import_time();
  if (!when.empty()) {
    const std::string question = finding_text(app_.text("Import_Msg_UndoQuestion"), {when});
    if (app_.message_box(question, MessageStyle::kQuestionYesNo) != MessageAnswer::kYes) return;
  }
  take_back_import();
}

bool fMain::take_back_import() {
  using End = BookBackup::Outcome::End;
  BookBackup backup = book_backup();
  BookBackup::Outcome outcome;
  const bool done = procedure_with_own_report(
      app_.errors, "fMain.take_back_import", {},
      [&] {
        const BusyWork busy(*this);
        outcome = backup.take_back();
      },
      [&](const RuntimeFault& fault, int statement) {
        app_.errors.ErrorLogWithMsgBox("fMain.take_back_import", {}, fault, statement);
        if (!fault.addition().empty()) {
          app_.message_box(fault.addition(), MessageStyle::kExclamation);
        }
      });
  show_way_back();
  if (!done) return false;
  if (outcome.end == End::kRestored || outcome.end == End::kPartly) {
    txtDDE.set_text("data");
    book_written_ = true;
  }
  tell_of(outcome, backup.folder());
  return true;
}

void fMain::tell_of(const BookBackup::Outcome& outcome, const std::string& folder) {
  using End = BookBackup::Outcome::End;
  std::string text;
  switch (outcome.end) {
    case End::kNothing:
      text = app_.text("Import_Msg_UndoNothing");
      break;
    case End::kRestored:
      text = finding_text(app_.text("Import_Msg_UndoDone"), {outcome.when});
      break;
    case End::kPartly:
      text = finding_text(app_.text("Import_Msg_UndoPartly"),
                          {outcome.when, std::to_string(outcome.taken)});
      break;
    case End::kNothingLeft:
      text = finding_text(app_.text("Import_Msg_UndoNothingLeft"), {outcome.when, folder});
      break;
  }
  if (outcome.end == End::kPartly && !outcome.untouched.empty()) {
    text += concat(
        kCrLf, finding_text(app_.text("Import_Msg_UndoUntouched"), {names_of(outcome.untouched)}));
  }
  const bool changed = outcome.end == End::kRestored || outcome.end == End::kPartly;
  app_.message_box(
      text, outcome.untouched.empty() ? MessageStyle::kInformation : MessageStyle::kExclamation);
  if (changed && !wizard.link_open) {
    app_.message_box(
        concat(texts["Import_Msg_DDENotConnect"], kCrLf, texts["Import_Msg_RefreshInfo"]),
        MessageStyle::kInformation);
  }
}

}  // namespace quenda

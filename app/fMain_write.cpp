#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "app/fMain.h"
#include "book/book_change.h"
#include "book/book_lines.h"
#include "book/book_list.h"
#include "book/pages/fImportMsg.h"
#include "book/pages/modImport.h"
#include "platform/controls/events.h"
#include "platform/files.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"
#include "wizard/shell/busy.h"
#include "wizard/shell/main_texts.h"

namespace quenda {
namespace {

/// A line of the book as reports show it: its number and its beginning.
std::string line_for_report(std::string_view book, std::string_view line) {
  constexpr std::size_t kMostCharacters = 200;
  const auto start = static_cast<std::size_t>(line.data() - book.data());
  return concat("Zeile ", std::to_string(count_of(book.substr(0, start), '\n') + 1), ": ",
                line.substr(0, kMostCharacters), line.size() > kMostCharacters ? "..." : "");
}

}  // namespace

void fMain::Add() {
  last_merge_ = std::make_unique<MergeRun>();
  MergeRun& run = *last_merge_;
  report_wanted_ = report_possible();
  const bool done = procedure_with_own_report(
      app_.errors, "fMain.Add", {}, [&] { run.end = merge_and_write(run); },
      [&](const RuntimeFault& fault, int statement) {
        if (run.line.empty()) {
          app_.errors.ErrorLogWithMsgBox("fMain.Add", {}, fault, statement);
        } else {
          const std::string shown = line_for_report(run.book, run.line);
          app_.errors.ErrorLogWithMsgBox("fMain.Add", {shown}, fault, statement);
        }
        // What the fault has done to the book.
        if (!fault.addition().empty()) {
          app_.message_box(fault.addition(), MessageStyle::kExclamation);
        }
      });
  if (!done) run.end = MergeRun::End::kFailed;
  if (run.end == MergeRun::End::kFailed || run.end == MergeRun::End::kChangedMeanwhile) {
    StatusBar.set_panel(2, "");
  }
  if (run.end == MergeRun::End::kFailed) return;
  if (run.end == MergeRun::End::kChangedMeanwhile) {
    // The same entries can be merged into the book as it is now.
    wizard.CurrentPage = Page::kEntries;
    show_composed(Composed::kEntries);
    refresh_buttons();
    app_.message_box(texts["Import_Msg_BookChanged"], MessageStyle::kExclamation);
    return;
  }
  if (report_wanted_) write_report();
  if (!wizard.link_open) {
    app_.message_box(
        concat(texts["Import_Msg_DDENotConnect"], kCrLf, texts["Import_Msg_RefreshInfo"]),
        MessageStyle::kInformation);
  }
  unload();
}

TailTexts fMain::book_texts() const {
  return {.unchanged = texts["Import_Msg_BookUnchanged"],
          .longer = texts["Import_Msg_BookLonger"],
          .damaged = texts["Import_Msg_BookDamaged"],
          .rest = texts["Import_Msg_BookRestAtEnd"],
          .large = texts["Import_Msg_BookTooLarge"]};
}

MergeRun::End fMain::merge_and_write(MergeRun& run) {
  const MergeRun::End end =
      merge_into_book(run, [this](const auto& question) { return ask_about_double(question); });
  return end == MergeRun::End::kToBeWritten ? write_book(run) : end;
}

MergeRun::End fMain::merge_into_book(MergeRun& run, const AskAboutDouble& ask) {
  BusyWork busy(*this);
  book_line_end = LineEnd::kCrLf;
  if (app_.machine.files.has_file(app_.paths.book_file())) {
    if (app_.machine.files.size(app_.paths.book_file()) > kLargestFile) {
      app_.message_box(texts["Import_Msg_BookTooLarge"], MessageStyle::kExclamation);
      return MergeRun::End::kFailed;
    }
    StatusBar.set_panel(2, texts["Import_Info_LoadBook"]);
    run.has_book = true;
    run.book = app_.machine.files.read(app_.paths.book_file());
    if (!book_readable(run)) return MergeRun::End::kFailed;
  }
  run.list.emplace(run.book, book_line_end, lstImpFinal.table());
  BookList& list = *run.list;
  list.read_book(run.line, busy.on_step(), run.lines);

  StatusBar.set_panel(2, texts["Import_Info_FilterData"]);
  list.add_rows(busy.on_step());
  OnDecision on_decision;
  const bool looks = run.questions == MergeAccount::Questions::kOnlyFound;
  if (looks || wizard.account_wanted || report_wanted_ || chkBackup.ticked()) {
    run.account.emplace(list.in_book(), lstImpFinal.count(), run.questions);
    on_decision = [&run](const DoubleDecision& decision) { run.account->note(decision); };
  }
  const std::optional<std::size_t> kept = modImport::RemoveDoubleEntriesTypedImportArray(
      app_.errors, list, merge_mode, ask, busy.on_step(), on_decision);
  if (!kept) return MergeRun::End::kFailed;

  // Entries that were replaced count as kept, and doubles that the book itself held count against
  // the new entries: as many new ones as such doubles are not written.
  if (list.in_book() < *kept) return MergeRun::End::kToBeWritten;
  if (run.account) run.account->withhold();
  if (run.questions == MergeAccount::Questions::kAnswered) txtDDE.set_text("nodata");
  return MergeRun::End::kNothingNew;
}

MergeRun::End fMain::write_book(MergeRun& run) {
  BusyWork busy(*this);
  StatusBar.set_panel(2, texts["Import_Info_WriteBook"]);
  const BookChange change(run.book, *run.list, busy.on_step());
  const ReplaceResult result =
      chkBackup.ticked() ? back_up_and_replace(run, change) : replace_book(run, change);
  if (result == ReplaceResult::kChangedMeanwhile) return MergeRun::End::kChangedMeanwhile;
  txtDDE.set_text("data");
  book_written_ = true;
  return MergeRun::End::kWritten;
}

bool fMain::book_readable(MergeRun& run) {
  const std::string_view book = run.book;
  const LineBreaks breaks = count_line_breaks(book);
  run.lines = breaks.lf + 1;
  book_line_end = line_end_of(book, breaks);
  if (book_line_end == LineEnd::kLf) StatusBar.set_panel(3, texts["Import_Info_BookHasLf"]);
  const std::size_t joined = line_of_joined_entries(book, book_line_end, breaks);
  if (joined == 0) return true;
  app_.message_box(concat(texts["Import_Msg_BookLineEnds"], kCrLf,
                          texts["Import_Msg_BookLineWithoutEnd"], " ", std::to_string(joined)),
                   MessageStyle::kExclamation);
  return false;
}

DoubleAnswer fMain::ask_about_double(const DoubleQuestion& question) {
  fImportMsg dialog(app_);
  dialog.fill(question.number, in_words(question.existing), in_words(question.fresh));
  dialog.compare(question);
  app_.machine.events.show_modal(dialog, *this);
  if (wizard.abort) throw EndProgram();
  // Nothing is guessed for the user when the dialog could not be answered.
  if (!dialog.answer) raise_fault(kFaultInvalidCall);
  optAsk(static_cast<int>(mode_after(*dialog.answer))).choose();
  return *dialog.answer;
}

}  // namespace quenda

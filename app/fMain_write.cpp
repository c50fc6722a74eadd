#include <optional>
#include <string>
#include <string_view>

#include "app/fMain.h"
#include "book/book_change.h"
#include "book/book_lines.h"
#include "book/book_list.h"
#include "book/pages/fImportMsg.h"
#include "book/pages/modImport.h"
#include "book/unreadable_lines.h"
#include "platform/controls/events.h"
#include "platform/files.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"
#include "wizard/shell/busy.h"

namespace quenda {
namespace {

constexpr std::string_view kBookName = "Das Telefonbuch";

/// A line of the book as reports show it: its number and its beginning.
std::string line_for_report(std::string_view book, std::string_view line) {
  constexpr std::size_t kMostCharacters = 200;
  const auto start = static_cast<std::size_t>(line.data() - book.data());
  return concat("Zeile ", std::to_string(count_of(book.substr(0, start), '\n') + 1), ": ",
                line.substr(0, kMostCharacters), line.size() > kMostCharacters ? "..." : "");
}

}  // namespace

void fMain::Add() {
  std::string book_text;
  std::string_view line;  // the line of the book that is being read, for the report of a fault
  auto merge = Merge::kFailed;
  const bool done = procedure_with_own_report(
      app_.errors, "fMain.Add", {}, [&] { merge = merge_into_book(book_text, line); },
      [&](const RuntimeFault& fault, int statement) {
        if (line.empty()) {
          app_.errors.ErrorLogWithMsgBox("fMain.Add", {}, fault, statement);
        } else {
          const std::string shown = line_for_report(book_text, line);
          app_.errors.ErrorLogWithMsgBox("fMain.Add", {shown}, fault, statement);
        }
        // What the fault has done to the book.
        if (!fault.addition().empty()) {
          app_.message_box(fault.addition(), MessageStyle::kExclamation);
        }
      });
  if (!done || merge != Merge::kDone) StatusBar.set_panel(2, "");
  if (!done || merge == Merge::kFailed) return;
  if (merge == Merge::kChangedMeanwhile) {
    // The same entries can be merged into the book as it is now.
    wizard.CurrentPage = Page::kEntries;
    show_composed(Composed::kEntries);
    refresh_buttons();
    app_.message_box(
        u8"Das Telefonbuch ist inzwischen von einem anderen Programm geändert worden. "
        u8"Es ist nichts geschrieben worden; \"Übernehmen\" liest es neu."_de,
        MessageStyle::kExclamation);
    return;
  }
  if (!wizard.link_open) {
    app_.message_box(
        concat(texts["Import_Msg_DDENotConnect"], kCrLf, texts["Import_Msg_RefreshInfo"]),
        MessageStyle::kInformation);
  }
  unload();
}

fMain::Merge fMain::merge_into_book(std::string& book_text, std::string_view& line) {
  BusyWork busy(*this);
  const std::string path = app_.paths.book_file();
  book_line_end = LineEnd::kCrLf;
  if (app_.machine.files.has_file(path)) {
    StatusBar.set_panel(2, texts["Import_Info_LoadBook"]);
    book_text = app_.machine.files.read(path);
    if (!book_readable(book_text)) return Merge::kFailed;
  }
  BookList list(book_text, book_line_end, lstImpFinal.table());
  list.read_book(line, busy.on_step());

  StatusBar.set_panel(2, texts["Import_Info_FilterData"]);
  list.add_rows(busy.on_step());
  const std::optional<std::size_t> kept = modImport::RemoveDoubleEntriesTypedImportArray(
      app_.errors, list, merge_mode,
      [this](std::string_view number, const std::string& existing, const std::string& fresh) {
        return ask_about_double(number, existing, fresh);
      },
      busy.on_step());
  if (!kept) return Merge::kFailed;

  // Entries that were replaced count as kept, and doubles that the book itself held count against
  // the new entries: as many new ones as such doubles are not written.
  if (list.in_book() >= *kept) {
    txtDDE.set_text("nodata");
    return Merge::kDone;
  }
  StatusBar.set_panel(2, texts["Import_Info_WriteBook"]);
  const BookChange change = compose_book(book_text, list, busy.on_step());
  const ReplaceResult result = app_.machine.files.replace_tail(path, {.old_text = book_text,
                                                                      .keep = change.keep,
                                                                      .pieces = change.pieces,
                                                                      .name = kBookName,
                                                                      .spoil = &make_unreadable});
  if (result == ReplaceResult::kChangedMeanwhile) return Merge::kChangedMeanwhile;
  txtDDE.set_text("data");
  book_written_ = true;
  return Merge::kDone;
}

bool fMain::book_readable(std::string_view book) {
  book_line_end = line_end_of(book);
  if (book_line_end == LineEnd::kLf) StatusBar.set_panel(3, texts["Import_Info_BookHasLf"]);
  const std::size_t joined = line_of_joined_entries(book, book_line_end);
  if (joined == 0) return true;
  app_.message_box(concat(texts["Import_Msg_BookLineEnds"], kCrLf,
                          texts["Import_Msg_BookLineWithoutEnd"], " ", std::to_string(joined)),
                   MessageStyle::kExclamation);
  return false;
}

DoubleAnswer fMain::ask_about_double(std::string_view number, const std::string& existing,
                                     const std::string& fresh) {
  fImportMsg dialog(app_);
  dialog.fill(number, existing, fresh);
  app_.machine.events.show_modal(dialog, *this);
  if (wizard.abort) throw EndProgram();
  // Nothing is guessed for the user when the dialog could not be answered.
  if (!dialog.answer) raise_fault(kFaultInvalidCall);
  optAsk(static_cast<int>(mode_after(*dialog.answer))).choose();
  return *dialog.answer;
}

}  // namespace quenda

#include <string_view>

#include "app/account/file_walk.h"
#include "app/account/import_account.h"
#include "app/account/report_file.h"
#include "app/fMain.h"
#include "book/number_cleaning.h"
#include "platform/files.h"
#include "settings/app.h"
#include "sources/delimited_text.h"
#include "support/procedure.h"
#include "text/entry_origin.h"
#include "text/text.h"
#include "wizard/shell/busy.h"

namespace quenda {

bool fMain::look_ahead() {
  last_merge_ = std::make_unique<MergeRun>();
  MergeRun& run = *last_merge_;
  run.questions = MergeAccount::Questions::kOnlyFound;
  const bool done = procedure(app_.errors, "fMain.look_ahead", {}, [&] {
    // Nobody is asked; it goes on as if the book's entry stayed.
    run.end = merge_into_book(run, [](const auto&) { return DoubleAnswer{}; });
  });
  if (!done) run.end = MergeRun::End::kFailed;
  return run.end != MergeRun::End::kFailed;
}

void fMain::find_source_lines() {
  if (source.lines_found) return;
  source.lines_found = true;
  if (source.kind() == Source::kIspy) {
    source.lines = lines_of_log(*source.ImportText);
  } else if (source.kind() == Source::kFile) {
    // The cleaning has changed the text, so the file is looked at once more. One that is gone by
    // now leaves the lines as they would be without breaks inside of records.
    skip_faults({[&] {
      source.lines = lines_of_records(app_.machine.files.read(txtImpFile.text()),
                                      source.Delimiter.front(), source.ImportRows.size());
    }});
  }
}

std::string fMain::number_of_source(std::size_t row) {
  const FlatTable& list = lstImpFinal.table();
  const std::uint32_t origin = list.origin(row);
  const std::string_view number = list.cell(row, kEntryNumber);
  // Without a word in the trace: this is done for every row that comes into view.
  const CleanNumber clean = [code = txtStateCode.text()](std::string_view raw, std::string& out) {
    clean_number(raw, code, out);
  };
  switch (source.kind()) {
    case Source::kIspy:
      break;
    case Source::kOutlook: {
      const std::string_view cell = contacts().cell(record_of(origin), row_of(origin));
      std::string cleaned;
      clean(cell, cleaned);
      return std::string(cleaned == number ? cell : number);
    }
    case Source::kFile:
      return number_in_file(source.ImportRows, origin, source.Delimiter.front(), composition(),
                            clean, number);
  }
  return std::string(number);
}

std::size_t fMain::walk_source(ListRows& listed, const OnSourceNumber& on_number) {
  const CleanNumber clean = number_cleaner();
  switch (source.kind()) {
    case Source::kIspy:
      return walk_call_log(source.ImportRows, source.lines, source.Delimiter, on_number);
    case Source::kOutlook:
      return walk_contacts(contacts(), OutlookPage::choice(), clean, chkNameLen.ticked(),
                           on_number);
    case Source::kFile:
      break;
  }
  const Composition composed = composition();
  return walk_file({.records = source.ImportRows,
                    .lines = source.lines,
                    .delimiter = source.Delimiter.front(),
                    .composition = composed,
                    .clean = clean,
                    .suppress_short_names = chkNameLen.ticked(),
                    .until = composed_records_},
                   listed, on_number);
}

AccountInput fMain::account_input() {
  const MergeRun* const run = last_merge_.get();
  const bool merged = run != nullptr && run->account && run->end != MergeRun::End::kFailed;
  find_source_lines();
  // A composition that failed has left its repeats where they are.
  if (composition_failed() && repeated_.empty()) repeated_ = remove_repeated_lines(entries_);
  return {
      .walk = [this](ListRows& listed,
                     const OnSourceNumber& tell) { return walk_source(listed, tell); },
      .list = lstImpFinal.table(),
      .removed = removed_rows(),
      .repeated = repeated_,
      .composed = !composition_failed(),
      .verdict =
          [run, merged](std::size_t row) {
            return merged ? run->account->of(row) : MergeAccount::Verdict{Fate::kUnread, {}, {}};
          },
      .line_of = [this](std::uint32_t origin) -> std::uint64_t {
        const bool has_lines = source.kind() != Source::kOutlook;
        return has_lines ? source.lines.line_of(record_of(origin)) : 0;
      },
      .name_in_book = [run](std::size_t entry) { return run->list->name(entry); }};
}

std::size_t fMain::account(const std::function<void(const ReportRow&)>& on_row) {
  return account_for(account_input(), on_row);
}

bool fMain::report_possible() {
  const ReportFile report(app_.settings.report);
  if (!report.wanted() || report.on_terminal()) return false;
  const std::string path = source.kind() == Source::kOutlook ? "" : txtImpFile.text();
  const bool possible =
      report.trouble(app_.machine.files, path, app_.paths.book_file()) == ReportTrouble::kNone;
  if (!possible) tell_no_report(app_.settings.report);
  return possible;
}

void fMain::tell_no_report(const std::string& path) {
  app_.message_box(replace_all(app_.text("Import_Msg_ReportFailed"), "%1", path),
                   MessageStyle::kExclamation);
}

void fMain::write_report() {
  const std::string& path = app_.settings.report;
  if (!write_report_to(path, false)) tell_no_report(path);
}

bool fMain::write_report_to(const std::string& path, bool dry_run) {
  using End = MergeRun::End;
  return procedure(app_.errors, "fMain.write_report", {}, [&] {
    const BusyWork busy(*this);
    const bool from_outlook = source.kind() == Source::kOutlook;
    const End end = last_merge_->end;
    ReportFile report(path);
    report.head.version = app_.version();
    report.head.file = from_outlook ? "" : txtImpFile.text();
    report.head.source = from_outlook ? "outlook" : source.IsISpyFile ? "ispy" : "file";
    report.head.dry_run = dry_run;
    report.head.result = end == End::kWritten || end == End::kToBeWritten ? "data"
                         : end == End::kFailed                            ? "refused"
                                                                          : "nodata";
    const auto tell_rows = [this](const ReportFile::OnRow& on_row) { return account(on_row); };
    report.count(app_.machine.files, tell_rows);
    report.write(app_.machine.files, tell_rows);
  });
}

}  // namespace quenda

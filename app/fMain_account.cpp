#include <string_view>

#include "app/account/import_account.h"
#include "app/fMain.h"
#include "platform/files.h"
#include "settings/app.h"
#include "sources/delimited_text.h"
#include "support/procedure.h"
#include "text/entry_origin.h"

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

SourceLines fMain::source_lines() {
  if (source.kind() == Source::kOutlook) return {};
  if (source.kind() == Source::kIspy) return lines_of_log(*source.ImportText);
  if (source.converted) return source.lines;
  // The cleaning has changed the text, so the file is looked at once more. One that is gone by now
  // leaves the lines as they would be without breaks inside of records.
  SourceLines lines;
  skip_faults({[&] {
    lines = lines_of_records(app_.machine.files.read(txtImpFile.text()), source.Delimiter.front(),
                             source.ImportRows.size());
  }});
  return lines;
}

std::size_t fMain::walk_source(const SourceLines& lines, const OnSourceNumber& on_number) {
  const CleanNumber clean = number_cleaner();
  switch (source.kind()) {
    case Source::kIspy:
      return walk_call_log(source.ImportRows, lines, source.Delimiter, on_number);
    case Source::kOutlook:
      return walk_contacts(contacts(), OutlookPage::choice(), clean, chkNameLen.ticked(),
                           on_number);
    case Source::kFile:
      break;
  }
  return walk_file(source.ImportRows, lines, source.Delimiter.front(), composition(), clean,
                   chkNameLen.ticked(), source.ImportRows.size(), on_number);
}

std::size_t fMain::account(const std::function<void(const ReportRow&)>& on_row) {
  const MergeRun* const run = last_merge_.get();
  const bool merged = run != nullptr && run->account && run->end != MergeRun::End::kFailed;
  const FlatTable& list = lstImpFinal.table();
  const SourceLines lines = source_lines();
  const auto verdict = [&](std::size_t row) {
    return merged ? run->account->of(row) : MergeAccount::Verdict{Fate::kUnread, {}, {}};
  };
  const auto line_of_row = [&](std::size_t row) -> std::uint64_t {
    const bool has_lines = source.kind() != Source::kOutlook;
    return has_lines ? lines.line_of(list.origin(row) >> kOriginRowBits) : 0;
  };
  return account_for(
      {.walk = [&](const OnSourceNumber& tell) { return walk_source(lines, tell); },
       .list = list,
       .verdict = verdict,
       .line_of_row = line_of_row,
       .name_in_book = [&](std::size_t entry) { return run->list->contact(entry).name; }},
      on_row);
}

}  // namespace quenda

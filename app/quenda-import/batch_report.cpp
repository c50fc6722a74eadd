#include <array>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/quenda-import/batch_steps.h"
#include "support/procedure.h"
#include "text/literal_1252.h"
#include "text/text.h"

// What a run tells of itself when it is over: the report, the sums, the exit status.
namespace quenda {

void BatchRun::take_report_of_settings() {
  // The form would write it by itself, and of a run that came through only.
  const std::string path = std::exchange(app_.settings.report, {});
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
  const ReportFile::TellRows tell_rows = [this](const ReportFile::OnRow& on_row) {
    return composed_ ? main_.account(on_row) : 0;
  };
  if (composed_) {
    // A run that was refused half way is told as what it would have done.
    if (link_.result().empty() && !main_.composition_failed()) main_.look_ahead();
    report_.count(machine_.files, tell_rows);
  }
  head.result = account_result();
  progress_.clear();
  if (composed_) say(fate_summary(report_.fates()));
  if (status_ == kExitDone && options_.strict && count_lost(report_.fates()) > 0) {
    status_ = kExitNumbersLost;
  }
  if (report_.on_terminal()) {
    console_.out << report_.text(machine_.files, tell_rows);
  } else if (report_.wanted()) {
    const bool written = procedure(app_.errors, "quenda-import.give_account", {},
                                   [&] { report_.write(machine_.files, tell_rows); });
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

}  // namespace quenda

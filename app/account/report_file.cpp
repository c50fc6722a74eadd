#include "app/account/report_file.h"

#include <utility>

#include "platform/files.h"
#include "support/procedure.h"

namespace quenda {
ReportFile::ReportFile(std::string path) : path_(std::move(path)), format_(report_format(path_)) {}

ReportTrouble ReportFile::trouble(const Files& files, std::string_view source,
                                  std::string_view book) const {
  if (!wanted() || on_terminal()) return ReportTrouble::kNone;
  if (files.same_file(path_, source)) return ReportTrouble::kIsSource;
  if (files.same_file(path_, book)) return ReportTrouble::kIsBook;
  return files.can_write(path_) ? ReportTrouble::kNone : ReportTrouble::kNotWritable;
}

void ReportFile::count(Files& files, const TellRows& tell_rows) {
  const bool at_once = wanted() && !head_tells_counts(format_);
  if (at_once) begin(files);
  head.records = tell_rows([&](const ReportRow& row) {
    ++head.fates.at(static_cast<std::size_t>(row.fate));
    if (at_once) add(files, row);
  });
  has_rows_ = at_once;
}

void ReportFile::write(Files& files, const TellRows& tell_rows) {
  add_rows(files, tell_rows);
  write_part(files);
  if (trouble_) std::rethrow_exception(trouble_);
}

std::string_view ReportFile::text(Files& files, const TellRows& tell_rows) {
  add_rows(files, tell_rows);
  return part_.text();
}

void ReportFile::begin(Files& files) {
  append_report_head(part_, format_, head);
  if (!on_terminal()) write_part(files);
}

void ReportFile::add(Files& files, const ReportRow& row) {
  constexpr std::size_t kPart = 1024UL * 1024;
  if (trouble_) return;
  append_report_row(part_, format_, row);
  if (part_.size() >= kPart && !on_terminal()) write_part(files);
}

void ReportFile::add_rows(Files& files, const TellRows& tell_rows) {
  if (has_rows_) return;
  has_rows_ = true;
  begin(files);
  tell_rows([&](const ReportRow& row) { add(files, row); });
}

void ReportFile::write_part(Files& files) {
  if (trouble_) return;
  // The numbers are counted to the end all the same.
  trouble_ = keep_fault([&] {
    if (begun_) {
      files.append(path_, part_.text());
    } else {
      files.write(path_, part_.text());
    }
  });
  begun_ = true;
  part_.clear();
}

}  // namespace quenda

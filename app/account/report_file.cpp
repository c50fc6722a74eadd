#include "app/account/report_file.h"

#include <utility>

#include "platform/files.h"

namespace quenda {
ReportFile::ReportFile(std::string path) : path_(std::move(path)), format_(report_format(path_)) {}

ReportTrouble ReportFile::trouble(const Files& files, std::string_view source,
                                  std::string_view book) const {
  if (!wanted() || on_terminal()) return ReportTrouble::kNone;
  if (files.same_file(path_, source)) return ReportTrouble::kIsSource;
  if (files.same_file(path_, book)) return ReportTrouble::kIsBook;
  return files.can_write(path_) ? ReportTrouble::kNone : ReportTrouble::kNotWritable;
}

void ReportFile::add(const ReportRow& row) {
  ++head.fates.at(static_cast<std::size_t>(row.fate));
  if (wanted()) append_report_row(rows_, format_, row);
}

std::string ReportFile::text() const {
  std::string text;
  append_report_head(text, format_, head);
  return text + rows_;
}

void ReportFile::write(Files& files) const {
  // In two parts: the head counts what stands in the rows, and both together need not lie in memory
  // twice.
  std::string text;
  append_report_head(text, format_, head);
  files.write(path_, text);
  files.append(path_, rows_);
}

}  // namespace quenda

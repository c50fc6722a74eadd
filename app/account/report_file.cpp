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

std::string ReportFile::text(const TellRows& tell_rows) const {
  ReportText text;
  append_report_head(text, format_, head);
  tell_rows([&](const ReportRow& row) { append_report_row(text, format_, row); });
  return std::string(text.text());
}

void ReportFile::write(Files& files, const TellRows& tell_rows) const {
  constexpr std::size_t kPart = 1024UL * 1024;
  ReportText part;
  append_report_head(part, format_, head);
  files.write(path_, part.text());
  part.clear();
  tell_rows([&](const ReportRow& row) {
    append_report_row(part, format_, row);
    if (part.size() < kPart) return;
    files.append(path_, part.text());
    part.clear();
  });
  files.append(path_, part.text());
}

}  // namespace quenda

#include "app/quenda-import/report_file.h"

#include <utility>

#include "platform/files.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

std::string in_quotes(std::string_view path) { return concat("\"", path, "\""); }

}  // namespace

ReportFile::ReportFile(std::string path) : path_(std::move(path)), format_(report_format(path_)) {}

std::string ReportFile::trouble(const Files& files, std::string_view source,
                                std::string_view book) const {
  if (!wanted() || on_terminal()) return {};
  if (files.same_file(path_, source)) {
    return concat(u8"Der Bericht würde die Quelle überschreiben: "_de, in_quotes(path_));
  }
  if (files.same_file(path_, book)) {
    return concat(u8"Der Bericht würde das Telefonbuch überschreiben: "_de, in_quotes(path_));
  }
  if (!files.can_write(path_)) {
    return concat("Der Bericht kann nicht geschrieben werden: ", in_quotes(path_));
  }
  return {};
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

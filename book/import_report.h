#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "book/fate.h"
#include "book/report_text.h"

// The report of an import: one line for each number of the source. As CSV for people and their
// spreadsheets, as JSON lines for programs. UTF-8, unlike all other texts of the tool.
namespace quenda {

enum class ReportFormat { kCsv, kJsonLines };

/// By the ending of the path: ".json" in any letter case, or else CSV.
[[nodiscard]] ReportFormat report_format(std::string_view path);

/// Whether the head tells how many records and fates there are.
[[nodiscard]] constexpr bool head_tells_counts(ReportFormat format) {
  return format == ReportFormat::kJsonLines;
}

/// What the import was, and what came of it.
struct ReportHead {
  std::string version;      // "1.17"
  std::string file;         // path of the source, empty for Outlook
  std::string_view source;  // "file", "ispy" or "outlook"
  bool dry_run = false;     // nothing was to be written
  std::size_t records = 0;  // of the source, the header not counted
  std::string result;       // "data", "nodata" or "refused"
  FateCounts fates{};       // their sum is the count of numbers
  std::vector<std::pair<std::string, std::string>> options;   // as they held for this run
  std::vector<std::pair<std::string, std::size_t>> unchosen;  // numbers in columns not chosen
};

/// One number of the source. The texts are Windows-1252 and only looked at.
struct ReportRow {
  std::uint64_t line = 0;  // of the source file, from 1; 0 for Outlook
  std::size_t record = 0;  // from 1 behind the header
  int row = 0;             // which of the chosen number columns, from 1; 0 for a record without any
  std::string_view name;
  std::string_view number;  // cleaned
  std::string_view raw;     // as the source has it
  std::string_view address;
  Fate fate = Fate::kUnread;
  std::optional<std::uint64_t> with;         // line of the entry that it gave way to
  std::optional<std::string_view> existing;  // name in the book
  std::optional<std::size_t> list_row = {};  // in the final list; not part of the report
};

/// What stands before the rows.
void append_report_head(ReportText& out, ReportFormat format, const ReportHead& head);
void append_report_row(ReportText& out, ReportFormat format, const ReportRow& row);

}  // namespace quenda

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "book/import_report.h"

namespace quenda {

class Files;

/// Why a report cannot be written where it is wanted.
enum class ReportTrouble { kNone, kIsSource, kIsBook, kNotWritable };

/// The report of a run, in the format that its path tells. Its head has to be complete before it is
/// written, the counts of fates included.
class ReportFile {
 public:
  /// Empty for no report, "-" for the terminal.
  explicit ReportFile(std::string path);

  [[nodiscard]] bool wanted() const { return !path_.empty(); }
  [[nodiscard]] bool on_terminal() const { return path_ == "-"; }

  [[nodiscard]] const std::string& path() const { return path_; }

  /// To be asked before anything else is written. An older report is left alone.
  [[nodiscard]] ReportTrouble trouble(const Files& files, std::string_view source,
                                      std::string_view book) const;

  /// Counts the fate of a number in the head.
  void count(const ReportRow& row) { ++head.fates.at(static_cast<std::size_t>(row.fate)); }
  [[nodiscard]] const FateCounts& fates() const { return head.fates; }

  /// Tells of the numbers in their order. The report is made while it is told: it may be as large
  /// as the source, and need not lie in memory.
  using OnRow = std::function<void(const ReportRow&)>;
  using TellRows = std::function<void(const OnRow&)>;

  [[nodiscard]] std::string text(const TellRows& tell_rows) const;
  /// Writes the report in place of an older one.
  void write(Files& files, const TellRows& tell_rows) const;

  ReportHead head;

 private:
  std::string path_;
  ReportFormat format_;
};

}  // namespace quenda

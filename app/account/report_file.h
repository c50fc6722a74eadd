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

/// Collects the report of a run and writes it at the end, in the format that its path tells.
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

  /// Adds a number. Counts its fate.
  void add(const ReportRow& row);
  [[nodiscard]] const FateCounts& fates() const { return head.fates; }

  /// The whole report; nothing can be added behind it.
  [[nodiscard]] std::string text() const;
  /// Writes it, in place of an older one.
  void write(Files& files) const;

  ReportHead head;

 private:
  std::string path_;
  ReportFormat format_;
  std::string rows_;
};

}  // namespace quenda

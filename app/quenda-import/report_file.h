#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "book/import_report.h"

namespace quenda {

class Files;

/// Collects the report of a run and writes it at the end, in the format that its path tells.
class ReportFile {
 public:
  /// Empty for no report, "-" for the terminal.
  explicit ReportFile(std::string path);

  [[nodiscard]] bool wanted() const { return !path_.empty(); }
  [[nodiscard]] bool on_terminal() const { return path_ == "-"; }

  /// Why the report could not be written there; empty when it could. To be asked before anything
  /// else is written. An older report is left alone.
  [[nodiscard]] std::string trouble(const Files& files, std::string_view source,
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

#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <string>
#include <string_view>

#include "book/import_report.h"
#include "book/report_text.h"

namespace quenda {

class Files;

/// Why a report cannot be written where it is wanted.
enum class ReportTrouble { kNone, kIsSource, kIsBook, kNotWritable };

/// The report of a run, in the format that its path tells. It is made while the numbers are told:
/// it may be as large as the source, and need not lie in memory.
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

  [[nodiscard]] const FateCounts& fates() const { return head.fates; }

  /// Tells of the numbers in their order, the same ones each time. Returns the count of records.
  using OnRow = std::function<void(const ReportRow&)>;
  using TellRows = std::function<std::size_t(const OnRow&)>;

  /// Counts the records and the fates of the numbers, for the head. Where the head does not tell of
  /// them, the rows are written meanwhile; `write` raises the fault that this ended with.
  void count(Files& files, const TellRows& tell_rows);
  /// Writes what is not written yet, in place of an older report. The head has to be complete.
  void write(Files& files, const TellRows& tell_rows);
  /// The same for the terminal: all of the report, good as long as this object.
  [[nodiscard]] std::string_view text(Files& files, const TellRows& tell_rows);

  ReportHead head;

 private:
  void begin(Files& files);
  void add(Files& files, const ReportRow& row);
  void add_rows(Files& files, const TellRows& tell_rows);
  void write_part(Files& files);

  std::string path_;
  ReportFormat format_;
  ReportText part_;             // that is not written yet
  bool begun_ = false;          // the file has its head
  bool has_rows_ = false;       // all rows have been added
  std::exception_ptr trouble_;  // which ended the writing
};

}  // namespace quenda

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "support/build_version.h"
#include "support/trace_value.h"
#include "text/fault.h"

namespace quenda {

class clsCollection;
class Files;

/// The settings that the error service looks up each time it needs them.
struct ErrorEnvironment {
  std::string program_code = "IMP";  // names the program in every line; empty becomes "NON"
  int major = kVersionMajor;
  int minor = kVersionMinor;
  bool trapping = true;     // off lets faults pass through, for work with a debugger
  std::string main_folder;  // without "\" at the end; empty means that no log is written
  bool trace_mode = false;
  bool LogExport = false;
  bool LogCAPI = false;
  bool LogAVM = false;
  bool LogNCID = false;
  bool LogTAPI = false;
  bool LogOther = false;
  bool LogTiming = false;
};

/// Reports trapped faults and writes the trace and debug logs of the suite. Nothing here raises,
/// whatever happens to the files.
class clsErrorHandling {
 public:
  /// All three have to live as long as the service.
  clsErrorHandling(const ErrorEnvironment& environment, Files& files, const Clock& clock);
  clsErrorHandling(const clsErrorHandling&) = delete;
  clsErrorHandling& operator=(const clsErrorHandling&) = delete;
  /// Writes the trace lines that still wait.
  ~clsErrorHandling();

  /// Whether procedures trap faults.
  [[nodiscard]] bool trapping() const { return environment_.trapping; }
  /// Whether procedures announce themselves.
  [[nodiscard]] bool tracing() const {
    return environment_.trace_mode && !environment_.main_folder.empty();
  }
  /// The code of the program, never empty.
  [[nodiscard]] std::string_view program_code() const;

  /// Code and version, "IMP v1.17".
  [[nodiscard]] std::string program_and_version() const;
  [[nodiscard]] const std::string& main_folder() const { return environment_.main_folder; }

  /// The error log as messages to the user name it. The reports themselves are in no file; in trace
  /// mode the trace log has them.
  [[nodiscard]] static std::string_view FileLogError() { return "\\log\\error.log"; }
  /// Whether the first trace entry tells the user that tracing is on, and starts a new trace log.
  void TraceInfoMessage(bool show) { trace_info_message_ = show; }
  /// Reports a fault and the statement that it came from, 0 where the procedure does not count
  /// them. Nothing is reported for the fault 0, but by `ErrorLogForceWrite`.
  void ErrorLogForceWrite(std::string_view procedure, TraceValues parameters,
                          const RuntimeFault& fault = RuntimeFault(0), int statement = 0);
  /// The user sees a box, too.
  void ErrorLogWithMsgBox(std::string_view procedure, TraceValues parameters,
                          const RuntimeFault& fault, int statement);
  void ErrorLogNew(std::string_view procedure, TraceValues parameters, const RuntimeFault& fault,
                   int statement);
  void LogDebug_Trace(std::string_view procedure, TraceValues parameters);
  /// Keeps the next `count` trace entries out of the log.
  void TraceHideNextSteps(std::int16_t count);
  void LogDebug_Export(std::string_view procedure, TraceValues parameters);
  void LogDebug_TAPI(std::string_view procedure, TraceValues parameters);
  void LogDebug_CAPI(std::string_view procedure, TraceValues parameters);
  void LogDebug_AVM(std::string_view procedure, TraceValues parameters);
  void LogDebug_NCID(std::string_view procedure, TraceValues parameters);
  void LogDebug_Other(std::string_view procedure, TraceValues parameters);
  void LogDebug_Timing(std::string_view procedure, TraceValues parameters);
  void LogDebug_Temp(std::string_view procedure, TraceValues parameters);

  /// The line of the last report, as a log would show it; empty before the first report.
  [[nodiscard]] const std::string& last_report() const { return last_report_; }

  /// The path of the trace log, whether it is there or not.
  [[nodiscard]] std::string trace_path() const;
  /// The path of the trace log, with all that has been traced so far in it; empty while nothing is
  /// traced or it cannot be written.
  [[nodiscard]] std::string written_trace();

  /// Shows a box through `show_message`.
  void show(std::string_view text, MessageStyle style, std::string_view title);

  /// Set once those services exist, which report their own faults here. Without them a message
  /// shows the keys of its texts, and boxes are not shown.
  std::function<std::string(std::string_view key)> look_up_text;
  std::function<void(std::string_view text, MessageStyle style, std::string_view title)>
      show_message;
  /// Shows the box about a fault, which can tell more than its text; `report` is the line that a
  /// log would show. Without it the box comes through `show_message`.
  std::function<void(std::string_view text, const std::string& report)> show_fault;
  /// Told about every report that is not suppressed.
  std::function<void(std::string_view procedure, const RuntimeFault& fault,
                     std::string_view parameters)>
      on_report;

 private:
  struct MessageTexts {
    std::string ErrorRaised;
    std::string SeeFile;
    std::string TracingIsActive;
    std::string MuchDataInShortTime;
  };

  const MessageTexts& LoadMessageTexts();
  enum class ReportKind { kSilent, kWithBox, kForced };

  void ComposeErrorReport(std::string_view procedure, TraceValues parameters,
                          const RuntimeFault& fault, int statement, ReportKind kind);
  void report(std::string_view procedure, const std::string& parameters, const RuntimeFault& fault,
              int statement, ReportKind kind);
  void Trace_Flush();
  void DeleteTraceFile();
  bool CanTrace();
  void QueueTraceLine(std::string_view procedure, TraceValues parameters);
  void WriteTraceQueue();
  void WriteDebugLog(std::string_view procedure, TraceValues parameters);
  [[nodiscard]] std::string log_path(std::string_view name) const;

  const ErrorEnvironment& environment_;
  Files& files_;
  const Clock& clock_;
  LocalTime start_time_;
  bool first_trace_pending_ = true;
  bool trace_info_message_ = false;
  int hide_counter_ = 0;
  std::optional<MessageTexts> message_texts_;
  std::string last_traced_;
  int repeat_count_ = 0;
  std::unique_ptr<clsCollection> oTraceQueue_;
  bool telling_of_failure_ = false;
  std::string last_report_;
};

}  // namespace quenda

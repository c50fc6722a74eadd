#include "support/clsErrorHandling.h"

#include <variant>

#include "platform/files.h"
#include "support/clsCollection.h"
#include "support/clsFiles.h"
#include "support/procedure.h"
#include "support/report_text.h"
#include "text/date_text.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kTraceLog = "\\log\\trace.log";
constexpr std::string_view kDebugLog = "\\log\\debug.log";
constexpr int kHighestRepeat = 32767;
constexpr std::int16_t kLinesPerWrite = 50;

std::string parameter_text(TraceValues parameters) {
  std::string text = "ERROR in GetStringFromParamArray";
  skip_faults({[&] { text = GetStringFromParamArray(parameters); }});
  return text;
}

}  // namespace

clsErrorHandling::clsErrorHandling(const ErrorEnvironment& environment, Files& files,
                                   const Clock& clock)
    : environment_(environment), files_(files), clock_(clock), start_time_(clock.now()) {}

clsErrorHandling::~clsErrorHandling() { Trace_Flush(); }

std::string_view clsErrorHandling::program_code() const {
  return environment_.program_code.empty() ? std::string_view("NON") : environment_.program_code;
}

std::string clsErrorHandling::program_and_version() const {
  return concat(program_code(), " v", std::to_string(environment_.major), ".",
                std::to_string(environment_.minor));
}

std::string clsErrorHandling::log_path(std::string_view name) const {
  return concat(environment_.main_folder, name);
}

void clsErrorHandling::show(std::string_view text, MessageStyle style, std::string_view title) {
  if (show_message) show_message(text, style, title);
}

const clsErrorHandling::MessageTexts& clsErrorHandling::LoadMessageTexts() {
  if (!message_texts_) {
    const auto text = [&](std::string_view key) {
      return look_up_text ? look_up_text(key) : std::string(key);
    };
    message_texts_ = {text("Message_ErrorRaised"), text("Message_SeeFile"),
                      text("Message_TracingIsActive"), text("Message_MuchDataInShortTime")};
  }
  return *message_texts_;
}

// Reports.

void clsErrorHandling::ErrorLogForceWrite(std::string_view procedure, TraceValues parameters,
                                          const RuntimeFault& fault, int statement) {
  ComposeErrorReport(procedure, parameters, fault, statement, ReportKind::kForced);
}

void clsErrorHandling::ErrorLogWithMsgBox(std::string_view procedure, TraceValues parameters,
                                          const RuntimeFault& fault, int statement) {
  ComposeErrorReport(procedure, parameters, fault, statement, ReportKind::kWithBox);
}

void clsErrorHandling::ErrorLogNew(std::string_view procedure, TraceValues parameters,
                                   const RuntimeFault& fault, int statement) {
  ComposeErrorReport(procedure, parameters, fault, statement, ReportKind::kSilent);
}

void clsErrorHandling::ComposeErrorReport(std::string_view procedure, TraceValues parameters,
                                          const RuntimeFault& fault, int statement,
                                          ReportKind kind) {
  bool reported = false;
  skip_faults({[&] {
    report(procedure, parameter_text(parameters), fault, statement, kind);
    reported = true;
  }});
  // A box that fails is reported here. If that report fails as well, the two would call each other
  // until the stack is full.
  if (reported || telling_of_failure_) return;
  telling_of_failure_ = true;
  // What went wrong is not known any more: the second line stays empty.
  skip_faults(
      {[&] { show(concat("Error in ExceptionHandler", kCrLf), MessageStyle::kExclamation, ""); }});
  telling_of_failure_ = false;
}

void clsErrorHandling::report(std::string_view procedure, const std::string& parameters,
                              const RuntimeFault& fault, int statement, ReportKind kind) {
  const int number = fault.number();
  const bool force = kind == ReportKind::kForced;
  if (number == kFaultModelessWhileModal || (!force && number == 0)) return;
  const std::string description = number == 0 ? std::string() : fault.description();
  const std::string line = statement == 0 ? std::string() : std::to_string(statement);
  LogDebug_Trace("!ERROR!", {concat(line, " - ", std::to_string(number)), description});
  const std::string elapsed = environment_.program_code == "PRG"
                                  ? concat(ElapsedTimeText(start_time_, clock_.now()), " ")
                                  : std::string();
  last_report_ = error_report_line({.program = program_and_version(),
                                    .elapsed = elapsed,
                                    .procedure = procedure,
                                    .statement = statement,
                                    .number = number,
                                    .description = description,
                                    .parameters = parameters,
                                    .forced = force});
  if (on_report) on_report(procedure, fault, parameters);
  if (kind != ReportKind::kWithBox) return;
  const MessageTexts& texts = LoadMessageTexts();
  const std::string text = concat(texts.ErrorRaised, kCrLf, texts.SeeFile, ": ", FileLogError());
  if (show_fault) {
    show_fault(text, last_report_);
  } else {
    show(text, MessageStyle::kExclamation, "");
  }
}

// The trace log.

void clsErrorHandling::LogDebug_Trace(std::string_view procedure, TraceValues parameters) {
  if (!tracing()) return;
  if (first_trace_pending_ && trace_info_message_) {
    first_trace_pending_ = false;
    DeleteTraceFile();
    const MessageTexts& texts = LoadMessageTexts();
    show(concat(texts.TracingIsActive, kCrLf, texts.SeeFile,
                ": \\Quendaspec.ini ([Debug] - TraceMode=1)", kCrLf, kCrLf,
                texts.MuchDataInShortTime, kCrLf, texts.SeeFile, ": ", log_path(kTraceLog)),
         MessageStyle::kInformation, "Quenda - Tracing");
  }
  if (CanTrace()) QueueTraceLine(procedure, parameters);
}

void clsErrorHandling::TraceHideNextSteps(std::int16_t count) { hide_counter_ = count + 1; }

bool clsErrorHandling::CanTrace() {
  if (hide_counter_ != 0) --hide_counter_;
  return hide_counter_ < 1;
}

void clsErrorHandling::DeleteTraceFile() { files_.remove(log_path(kTraceLog)); }

void clsErrorHandling::QueueTraceLine(std::string_view procedure, TraceValues parameters) {
  skip_faults({[&] {
    if (!last_traced_.empty() && last_traced_ == procedure) {
      if (repeat_count_ < kHighestRepeat) ++repeat_count_;
    } else {
      last_traced_ = procedure;
      repeat_count_ = 1;
    }
    if (!oTraceQueue_) {
      oTraceQueue_ = std::make_unique<clsCollection>();
      oTraceQueue_->Queue_InfoDealy(kLinesPerWrite);
      oTraceQueue_->QueueAdded = [this] { WriteTraceQueue(); };
    }
    oTraceQueue_->Queue_Add(concat(log_stamp(clock_.now()), program_and_version(), "  ", procedure,
                                   " ", two_digits(repeat_count_), parameter_text(parameters)));
  }});
}

void clsErrorHandling::WriteTraceQueue() {
  if (environment_.main_folder.empty()) return;
  skip_faults({[&] {
    std::string lines;
    for (const clsCollection::Item& item : oTraceQueue_->GetCollection()) {
      lines.append(std::get<std::string>(item.value)).append(kCrLf);
    }
    files_.append(log_path(kTraceLog), lines);  // a fault here leaves the lines in the queue
    oTraceQueue_->Clear();
  }});
}

void clsErrorHandling::Trace_Flush() {
  if (oTraceQueue_ && oTraceQueue_->Count() > 0) WriteTraceQueue();
}

std::string clsErrorHandling::trace_path() const { return log_path(kTraceLog); }

std::string clsErrorHandling::written_trace() {
  std::string path;
  if (!tracing()) return path;
  Trace_Flush();
  skip_faults({[&] {
    if (files_.has_file(log_path(kTraceLog))) path = log_path(kTraceLog);
  }});
  return path;
}

// The debug log.

void clsErrorHandling::WriteDebugLog(std::string_view procedure, TraceValues parameters) {
  if (environment_.main_folder.empty()) return;
  skip_faults({[&] {
    clsFiles(*this, files_, clock_)
        .FileWrite_Log(log_path(kDebugLog), concat(procedure, parameter_text(parameters)), 0);
  }});
}

void clsErrorHandling::LogDebug_Export(std::string_view procedure, TraceValues parameters) {
  if (environment_.LogExport) WriteDebugLog(procedure, parameters);
}

void clsErrorHandling::LogDebug_TAPI(std::string_view procedure, TraceValues parameters) {
  if (environment_.LogTAPI) WriteDebugLog(procedure, parameters);
}

void clsErrorHandling::LogDebug_CAPI(std::string_view procedure, TraceValues parameters) {
  if (environment_.LogCAPI) WriteDebugLog(procedure, parameters);
}

void clsErrorHandling::LogDebug_AVM(std::string_view procedure, TraceValues parameters) {
  if (environment_.LogAVM) WriteDebugLog(procedure, parameters);
}

void clsErrorHandling::LogDebug_NCID(std::string_view procedure, TraceValues parameters) {
  if (environment_.LogNCID) WriteDebugLog(procedure, parameters);
}

void clsErrorHandling::LogDebug_Other(std::string_view procedure, TraceValues parameters) {
  if (environment_.LogOther) WriteDebugLog(procedure, parameters);
}

void clsErrorHandling::LogDebug_Timing(std::string_view procedure, TraceValues parameters) {
  if (environment_.LogTiming) WriteDebugLog(procedure, parameters);
}

void clsErrorHandling::LogDebug_Temp(std::string_view procedure, TraceValues parameters) {
  WriteDebugLog(procedure, parameters);
}

}  // namespace quenda

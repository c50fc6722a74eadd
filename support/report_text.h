#pragma once

#include <string>
#include <string_view>

#include "support/trace_value.h"
#include "text/local_time.h"

// The texts of trace lines and error reports.
namespace quenda {

/// "S:" and a text, "B:" and 1 or 0, "N:" and a whole number; nothing for what is neither.
std::string FormatTraceParam(const TraceValue& value);

/// The values, those of lists included, with ", " between them and round brackets around them; line
/// breaks as "<CR>". Empty for no values.
std::string GetStringFromParamArray(TraceValues values);

/// The time between two moments as days, hours, minutes and seconds: "0:01:02:03".
std::string ElapsedTimeText(const LocalTime& a, const LocalTime& b);

/// One error report.
struct ErrorReport {
  std::string program;  // code and version, "IMP v1.17"
  std::string elapsed;  // run time with a blank behind, or nothing
  std::string_view procedure;
  int statement = 0;  // 0 where the procedure does not count statements
  int number = 0;
  std::string_view description;
  std::string_view parameters;
  bool forced =
      false;  // reported although nothing has happened; parts that say nothing are left out
};

/// The report as one line; control characters of the parameters are shown as "#[9]".
std::string error_report_line(const ErrorReport& report);

}  // namespace quenda

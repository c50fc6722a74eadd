#include "support/report_text.h"

#include <cstdint>
#include <cstdlib>

#include "text/date_text.h"
#include "text/text.h"

namespace quenda {
namespace {

void append_value(std::string& text, const TraceValue& value) {
  if (!text.empty()) text += ", ";
  text += FormatTraceParam(value);
}

/// Days since a fixed day, by the civil calendar.
std::int64_t day_number(const LocalTime& date) {
  // Widened first: the year before the smallest one has no place in an int.
  const std::int64_t year = std::int64_t{date.year} - (date.month > 2 ? 0 : 1);
  const std::int64_t month = date.month > 2 ? date.month - 3 : date.month + 9;
  return 365 * year + year / 4 - year / 100 + year / 400 + (153 * month + 2) / 5 + date.day;
}

std::int64_t second_number(const LocalTime& time) {
  return ((day_number(time) * 24 + time.hour) * 60 + time.minute) * 60 + time.second;
}

std::string visible(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (code < ' ') {
      result.append("#[").append(std::to_string(code)).append("]");
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace

std::string FormatTraceParam(const TraceValue& value) {
  if (const auto* const text = std::get_if<std::string_view>(&value.value())) {
    return concat("S:", *text);
  }
  if (const bool* const flag = std::get_if<bool>(&value.value())) return *flag ? "B:1" : "B:0";
  if (const auto* const number = std::get_if<long long>(&value.value())) {
    return concat("N:", std::to_string(*number));
  }
  return {};
}

std::string GetStringFromParamArray(TraceValues values) {
  std::string text;
  for (const TraceValue& value : values) {
    if (const auto* const list = std::get_if<TraceValue::List>(&value.value())) {
      for (const TraceValue& element : *list) append_value(text, element);
    } else {
      append_value(text, value);
    }
  }
  return text.empty() ? text : concat("(", replace_all(text, kCrLf, "<CR>"), ")");
}

std::string ElapsedTimeText(const LocalTime& a, const LocalTime& b) {
  const std::int64_t seconds = std::abs(second_number(a) - second_number(b));
  const std::int64_t minutes = seconds / 60;
  const std::int64_t hours = minutes / 60;
  return concat(std::to_string(hours / 24), ":", two_digits(hours % 24), ":",
                two_digits(minutes % 60), ":", two_digits(seconds % 60));
}

std::string error_report_line(const ErrorReport& report) {
  std::string line = concat(report.program, report.elapsed, " ", report.procedure);
  if (report.statement != 0) {
    const std::string number = std::to_string(report.statement);
    line.append(", Line:").append(number.size() < 3 ? 3 - number.size() : 0, ' ');
    line.append(number).append(" ");
  }
  if (!report.forced || report.number != 0) line += concat(" + ", std::to_string(report.number));
  if (!report.forced || !report.description.empty()) line += concat(" + ", report.description);
  if (!report.parameters.empty()) line += concat(" Params", visible(report.parameters));
  return line;
}

}  // namespace quenda

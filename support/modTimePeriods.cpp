#include "support/modTimePeriods.h"

#include "platform/system.h"
#include "support/procedure.h"
#include "text/date_text.h"
#include "text/text.h"

namespace quenda {

std::string modTimePeriods::GetFormatedDateByString(std::string_view date, std::string& separator,
                                                    bool year_first, bool no_year) {
  std::string text;
  procedure(errors_, "modTimePeriods.GetFormatedDateByString",
            {date, separator, year_first, no_year},
            [&] {
              const LocalTime day = date.empty() ? clock_.now() : CDateNew(date, "");
              if (separator.empty()) separator = GetLimiter();
              text = date_text(day, separator, year_first, no_year);
            })
      .or_go_on();
  return text;
}

std::string modTimePeriods::GetFormatedTimeNow() {
  std::string text;
  procedure(errors_, "modTimePeriods.GetFormatedTimeNow", {}, [&] {
    text = time_text(clock_.now());
  }).or_go_on();
  return text;
}

std::string modTimePeriods::GetLimiter() {
  procedure(errors_, "modTimePeriods.GetLimiter", {}, [&] {
    if (limiter_.empty()) limiter_ = separator_in(system_.short_date_today());
  }).or_go_on();
  return limiter_;
}

LocalTime modTimePeriods::CDateNew(std::string_view date, std::string_view time) {
  LocalTime moment;
  procedure(errors_, "modTimePeriods.CDateNew", {date, time}, [&] {
    std::string clock_part = time.empty() ? std::string() : concat(" ", trim(time));
    const int this_year = clock_.now().year;
    auto found = date_value(concat(date, clock_part), this_year);
    if (!found) {
      std::string day_part = replace_all(replace_all(date, ".", "-"), "/", "-");
      clock_part = replace_all(clock_part, ".", ":");
      found = date_value(concat(day_part, clock_part), this_year);
      if (!found) found = date_value(concat(DateClean(day_part), clock_part), this_year);
    }
    moment = found.value_or(LocalTime());
  }).or_go_on();
  return moment;
}

std::string modTimePeriods::DateClean(std::string_view text) {
  std::string date;
  procedure(errors_, "modTimePeriods.DateClean", {text}, [&] {
    date = clean_date(text);
  }).or_go_on();
  return date;
}

}  // namespace quenda

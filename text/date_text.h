#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/local_time.h"

// Dates and times as texts.
namespace quenda {

/// A number with a leading zero below 10.
std::string two_digits(long long number);

/// Years have four digits. Year first: "2014/03/02" for "/"; without year: "02.03." for "." (the
/// separator ends the text too); else "02.03.2014".
std::string date_text(const LocalTime& date, std::string_view separator, bool year_first,
                      bool no_year);

/// "17:05:09".
std::string time_text(const LocalTime& time);

/// What log lines begin with: date and time, two blanks behind each.
std::string log_stamp(const LocalTime& time);

/// The moment that a text names: a date ("02.03.2014", "2.3.14", "02/03/2014", "2-3-2014",
/// "2014-03-02", "2. März 2014", "2-Mrz-14"), a time ("17:05", "17:05:09") or both. A date without
/// year ("2.3.", "2. März") is in `this_year`, one without day ("3.2014", "März 2014") on the first
/// of the month, a text with only a time on 1899-12-30. Years below 30 are in this century, other
/// years of two digits in the last.
std::optional<LocalTime> date_value(std::string_view text, int this_year);

/// The first character between digits of a date in the system's format; empty when there is none.
std::string separator_in(std::string_view date);

/// The text from its first digit on; what stands behind the date stays. A text that begins with a
/// digit gives the empty text: it has been tried as it is before.
std::string clean_date(std::string_view text);

}  // namespace quenda

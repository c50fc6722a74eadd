#include "text/date_text.h"

#include <algorithm>
#include <array>
#include <vector>

#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kMostParts = 3;
constexpr std::string_view kZeros = "0000";  // in front of years below 1000

/// The whole numbers between the separators; nothing when a part is no number of up to four digits.
std::vector<int> numbers_between(std::string_view text, char separator) {
  std::vector<int> numbers;
  for (const auto part : split(text, std::string_view(&separator, 1))) {
    if (part.empty() || part.size() > 4 || !std::all_of(part.begin(), part.end(), is_digit))
      return {};
    int number = 0;
    for (const char c : part) number = 10 * number + (c - '0');
    numbers.push_back(number);
  }
  if (numbers.size() > kMostParts) numbers.clear();
  return numbers;
}

int days_of(int year, int month) {
  constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return kDays[static_cast<std::size_t>(month - 1)] + (month == 2 && leap ? 1 : 0);
}

/// A year as written, with the century of those of two digits.
int whole_year(int year) {
  constexpr int kFirstOldYear = 30;
  if (year > 99) return year;
  return year + (year < kFirstOldYear ? 2000 : 1900);
}

/// Sets the date where the calendar has it.
bool set_date(LocalTime& moment, int year, int month, int day) {
  if (month < 1 || month > 12 || day < 1 || day > days_of(year, month)) return false;
  moment.year = year;
  moment.month = month;
  moment.day = day;
  return true;
}

/// The number of a month by its German name or the first three letters of it; 0 for another word.
int month_of(std::string_view word) {
  constexpr std::array<std::string_view, 12> kNames = {
      "januar", "februar", u8"märz"_de, "april",   "mai",      "juni",
      "juli",   "august",  "september", "oktober", "november", "dezember"};
  if (equal_ignoring_case(word, "mrz")) return 3;
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (equal_ignoring_case(word, kNames[i]) || equal_ignoring_case(word, kNames[i].substr(0, 3))) {
      return static_cast<int>(i + 1);
    }
  }
  return 0;
}

/// A date with the name of its month: day and year around it, in this order where both fit. A
/// single number is the day, or the year where the month has no such day.
bool take_named_date(std::string_view text, int this_year, LocalTime& moment) {
  constexpr std::string_view kMarks = " .,/-";
  int month = 0;
  std::vector<int> numbers;
  for (auto start = text.find_first_not_of(kMarks); start != text.npos;
       start = text.find_first_not_of(kMarks, start)) {
    const auto end = std::min(text.find_first_of(kMarks, start), text.size());
    const std::string_view part = text.substr(start, end - start);
    start = end;
    const auto number = numbers_between(part, ' ');
    if (!number.empty()) {
      numbers.push_back(number.front());
    } else if (month != 0 || (month = month_of(part)) == 0) {
      return false;
    }
  }
  if (month == 0 || numbers.empty() || numbers.size() > 2) return false;
  const int first = numbers.front();
  const int last = numbers.back();
  if (numbers.size() == 1) {
    return set_date(moment, this_year, month, first) ||
           set_date(moment, whole_year(first), month, 1);
  }
  return set_date(moment, whole_year(last), month, first) ||
         set_date(moment, whole_year(first), month, last);
}

/// Two numbers are day and month, the other way round where only that fits, or month and year.
bool take_short_date(int first, int last, int this_year, LocalTime& moment) {
  return set_date(moment, this_year, last, first) || set_date(moment, this_year, first, last) ||
         set_date(moment, whole_year(last), first, 1) ||
         set_date(moment, whole_year(first), last, 1);
}

bool take_date(std::string_view text, int this_year, LocalTime& moment) {
  const auto mark = text.find_first_of("./-");
  auto numbers = mark == text.npos ? std::vector<int>() : numbers_between(text, text[mark]);
  if (numbers.size() == kMostParts) {
    if (text[mark] == '-' && mark == 4) std::swap(numbers[0], numbers[2]);
    return set_date(moment, whole_year(numbers[2]), numbers[1], numbers[0]);
  }
  if (numbers.empty() && text.ends_with('.')) {
    numbers = numbers_between(text.substr(0, text.size() - 1), '.');
  }
  if (numbers.size() == 2) return take_short_date(numbers[0], numbers[1], this_year, moment);
  return take_named_date(text, this_year, moment);
}

bool take_time(std::string_view text, LocalTime& moment) {
  auto numbers = numbers_between(text, ':');
  if (numbers.size() < 2) return false;
  numbers.resize(kMostParts);
  if (numbers[0] > 23 || numbers[1] > 59 || numbers[2] > 59) return false;
  moment.hour = numbers[0];
  moment.minute = numbers[1];
  moment.second = numbers[2];
  return true;
}

}  // namespace

std::string two_digits(long long number) {
  return concat(number >= 0 && number < 10 ? "0" : "", std::to_string(number));
}

std::string date_text(const LocalTime& date, std::string_view separator, bool year_first,
                      bool no_year) {
  const std::string digits = std::to_string(date.year);
  const std::string year = concat(kZeros.substr(std::min(digits.size(), kZeros.size())), digits);
  const std::string month = two_digits(date.month);
  const std::string day = two_digits(date.day);
  if (year_first) return concat(year, separator, month, separator, day);
  return concat(day, separator, month, separator, no_year ? std::string() : year);
}

std::string time_text(const LocalTime& time) {
  return concat(two_digits(time.hour), ":", two_digits(time.minute), ":", two_digits(time.second));
}

std::string log_stamp(const LocalTime& time) {
  return concat(date_text(time, "/", true, false), "  ", time_text(time), "  ");
}

std::optional<LocalTime> date_value(std::string_view text, int this_year) {
  LocalTime moment;
  std::string date;  // all parts but the time
  bool has_time = false;
  for (const auto part : split(trim(text), " ")) {
    if (part.find(':') == part.npos) {
      date.append(date.empty() ? 0 : 1, ' ').append(part);
    } else if (has_time || !take_time(part, moment)) {
      return std::nullopt;
    } else {
      has_time = true;
    }
  }
  const std::string_view day = trim(date);
  if (day.empty() ? !has_time : !take_date(day, this_year, moment)) return std::nullopt;
  return moment;
}

std::string separator_in(std::string_view date) {
  const auto* const first = std::find_if(date.begin(), date.end(), is_digit);
  const auto* const mark = std::find_if_not(first, date.end(), is_digit);
  return mark == date.end() ? std::string() : std::string(1, *mark);
}

std::string clean_date(std::string_view text) {
  text = trim(text);
  if (text.empty() || is_digit(text.front())) return {};
  const auto first_digit = text.find_first_of("0123456789");
  return first_digit == text.npos ? std::string() : std::string(text.substr(first_digit));
}

}  // namespace quenda

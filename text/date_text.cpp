#include "text/date_text.h"

#include <algorithm>
#include <array>
#include <vector>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kMostParts = 3;

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

bool take_date(std::string_view text, LocalTime& moment) {
  constexpr int kFirstOldYear = 30;
  const auto mark = text.find_first_of("./-");
  if (mark == text.npos) return false;
  auto numbers = numbers_between(text, text[mark]);
  if (numbers.size() != kMostParts) return false;
  const bool year_first = text[mark] == '-' && mark == 4;
  if (year_first) std::swap(numbers[0], numbers[2]);
  auto [day, month, year] = std::array{numbers[0], numbers[1], numbers[2]};
  if (year < 100) year += year < kFirstOldYear ? 2000 : 1900;
  if (month < 1 || month > 12 || day < 1 || day > days_of(year, month)) return false;
  moment.year = year;
  moment.month = month;
  moment.day = day;
  return true;
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
  const std::string year = std::to_string(date.year);
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

std::optional<LocalTime> date_value(std::string_view text) {
  LocalTime moment;
  bool has_date = false;
  bool has_time = false;
  for (const auto part : split(trim(text), " ")) {
    if (part.empty()) continue;
    bool& found = part.find(':') == part.npos ? has_date : has_time;
    if (found) return std::nullopt;
    found = &found == &has_date ? take_date(part, moment) : take_time(part, moment);
    if (!found) return std::nullopt;
  }
  if (!has_date && !has_time) return std::nullopt;
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

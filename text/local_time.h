#pragma once

namespace quenda {

/// Local calendar date and time of day.
struct LocalTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend bool operator==(const LocalTime&, const LocalTime&) = default;
};

}  // namespace quenda

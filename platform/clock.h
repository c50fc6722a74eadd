#pragma once

#include <cstdint>

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

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual LocalTime now() const = 0;
  /// Milliseconds of a clock that only moves forward; its zero has no meaning.
  [[nodiscard]] virtual std::uint64_t milliseconds() const = 0;
};

}  // namespace quenda

#pragma once

#include <cstdint>

#include "text/local_time.h"

namespace quenda {

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual LocalTime now() const = 0;
  /// Milliseconds of a clock that only moves forward; its zero has no meaning.
  [[nodiscard]] virtual std::uint64_t milliseconds() const = 0;
};

}  // namespace quenda

#pragma once

#include "platform/clock.h"

namespace quenda {

class Win32Clock : public Clock {
 public:
  [[nodiscard]] LocalTime now() const override;
  [[nodiscard]] std::uint64_t milliseconds() const override;
};

}  // namespace quenda

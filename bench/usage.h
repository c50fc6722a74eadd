#pragma once

#include <functional>
#include <vector>

namespace quenda {

/// What a process has used.
struct Usage {
  double seconds = 0;      // of the wall clock
  double cpu_seconds = 0;  // of one core, of which in the system:
  double system_seconds = 0;
  double faults = 0;     // of pages, without reading
  double megabytes = 0;  // at peak
};

/// Runs something in a process of its own and waits for it; ends this program when that fails.
Usage measure(const std::function<void()>& child);

/// Median, least and most of one of the values.
struct Spread {
  double median = 0;
  double least = 0;
  double most = 0;
};
Spread spread_of(const std::vector<Usage>& runs, double Usage::*value);

}  // namespace quenda

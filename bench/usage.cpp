#include "bench/usage.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>

namespace quenda {
namespace {

double seconds_of(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

Usage measure(const std::function<void()>& child) {
  const auto start = std::chrono::steady_clock::now();
  const pid_t process = fork();
  if (process == 0) {
    child();
    _exit(0);
  }
  int status = 0;
  rusage usage{};
  wait4(process, &status, 0, &usage);
  if (status != 0) {
    std::cerr << "a measured program failed\n";
    std::exit(1);
  }
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  return {.seconds = elapsed.count(),
          .cpu_seconds = seconds_of(usage.ru_utime) + seconds_of(usage.ru_stime),
          .system_seconds = seconds_of(usage.ru_stime),
          .faults = static_cast<double>(usage.ru_minflt),
          .megabytes = static_cast<double>(usage.ru_maxrss) / 1024};
}

Spread spread_of(const std::vector<Usage>& runs, double Usage::*value) {
  std::vector<double> values;
  for (const Usage& run : runs) values.push_back(run.*value);
  std::sort(values.begin(), values.end());
  return {.median = values[values.size() / 2], .least = values.front(), .most = values.back()};
}

}  // namespace quenda

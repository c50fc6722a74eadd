#pragma once

#include <cstddef>
#include <functional>

namespace quenda {

/// Told by long work how far it is: so much of so much, in whatever it counts.
using OnStep = std::function<void(std::size_t done, std::size_t total)>;

/// Tells of every 64th row of a long loop, and of the last. A row takes well under a microsecond:
/// to tell of each would cost a good part of the work itself.
class Steps {
 public:
  /// What is told has to live as long as this.
  Steps(const OnStep& on_step, std::size_t total) : on_step_(on_step), total_(total) {}
  Steps(const OnStep&& on_step, std::size_t total) = delete;

  /// One row more is done.
  void row_done(std::size_t done) {
    if (++rows_ % kRowsPerStep == 0 || done >= total_) on_step_(done, total_);
  }

 private:
  static constexpr unsigned kRowsPerStep = 64;

  const OnStep& on_step_;
  std::size_t total_;
  unsigned rows_ = 0;
};

}  // namespace quenda

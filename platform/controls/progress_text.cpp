#include "platform/controls/progress_text.h"

namespace quenda {

std::string progress_text(int percent, long long milliseconds_so_far) {
  constexpr int kTellingPercent = 5;
  constexpr long long kTellingTime = 3000;
  std::string text = std::to_string(percent) + " %";
  if (percent < kTellingPercent || percent >= 100 || milliseconds_so_far < kTellingTime) {
    return text;
  }
  const long long seconds = milliseconds_so_far * (100 - percent) / percent / 1000 + 1;
  const std::string two_digits = std::to_string(seconds % 60 + 100).substr(1);
  return text + " (" + std::to_string(seconds / 60) + ":" + two_digits + ")";
}

}  // namespace quenda

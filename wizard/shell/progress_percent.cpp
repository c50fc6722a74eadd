#include "wizard/shell/progress_percent.h"

namespace quenda {

int progress_percent(std::int64_t value, std::int64_t minimum, std::int64_t maximum) {
  if (maximum <= 0) return 100;
  if (value < minimum) value = minimum;
  if (value > maximum) value = maximum;
  const double percent = static_cast<double>(value) / static_cast<double>(maximum) * 100 + 0.5;
  return static_cast<int>(percent);
}

}  // namespace quenda

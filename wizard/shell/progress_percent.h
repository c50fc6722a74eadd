#pragma once

#include <cstdint>

namespace quenda {

/// How much of the work is done, in whole percents, rounded; 100 when there is nothing to do.
int progress_percent(std::int64_t value, std::int64_t minimum, std::int64_t maximum);

}  // namespace quenda

#pragma once

#include <cstdint>

#include "platform/controls/simple_controls.h"
#include "wizard/shell/progress_percent.h"

namespace quenda {

/// Draws on the picture how much of the work is done.
inline void modProgress_Show(PictureBox& picture, std::int64_t value, std::int64_t minimum,
                             std::int64_t maximum) {
  picture.set_percent(progress_percent(value, minimum, maximum));
}

}  // namespace quenda

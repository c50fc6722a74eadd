#pragma once

#include <string>

#include "tools/driver/driver_window.h"

namespace quenda {

/// Draws a window anew and, once the picture stands still, writes what the screen shows inside its
/// frame into a PNG file, with the mouse out of the way; false when that fails.
bool capture(const Window& window, const std::string& path);

}  // namespace quenda

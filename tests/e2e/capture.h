#pragma once

#include <string>

#include "tests/e2e/driver_window.h"

namespace quenda {

/// Writes what the screen shows inside a window's frame into a PNG file; false when that fails.
bool capture(const Window& window, const std::string& path);

}  // namespace quenda

#pragma once

#include <string_view>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// Gives a window a name that screen readers say in place of its text; an empty name takes it back.
/// A system without that service goes without.
void set_spoken_name(HWND window, std::string_view name);

}  // namespace quenda

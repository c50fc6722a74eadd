#pragma once

#include "platform/win32/windows_headers.h"

// What the system draws itself, dark or as usual. Systems that know no dark windows do nothing.
namespace quenda {

/// The title bar and the frame of a window.
void set_dark_frame(HWND window, bool dark);
/// The scroll bars of a list.
void set_dark_scroll_bars(HWND list, bool dark);

}  // namespace quenda

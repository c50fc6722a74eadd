#pragma once

#include <string_view>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// Answers WM_GETOBJECT for a window by the system's own accessible object, but with that name.
/// 0 when the system has none.
LRESULT answer_with_name(HWND window, WPARAM wparam, std::string_view name);

}  // namespace quenda

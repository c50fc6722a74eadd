#pragma once

#include <string>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// What a screen reader is told of a window in place of what the system would say.
struct Spoken {
  std::string name;
  long role = 0;      // of the accessibility service; 0 for the system's
  std::string value;  // empty for the system's
};

/// Answers WM_GETOBJECT for a window by the system's own accessible object, but with that name,
/// role and value. 0 when the system has none.
LRESULT answer_with(HWND window, WPARAM wparam, const Spoken& spoken);

}  // namespace quenda

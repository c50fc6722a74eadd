#pragma once

#include <string>

#include "platform/controls/list_place.h"
#include "platform/win32/windows_headers.h"

namespace quenda {

/// What a screen reader is told of a window in place of what the system would say.
struct Spoken {
  std::string name;
  long role = 0;      // of the accessibility service; 0 for the system's
  std::string value;  // empty for the system's
  // Of a list: how its rows are counted, "Zeile %1 von %2", and where in it the user is. It is the
  // description of the list and of each of its rows.
  std::string row_pattern = {};
  ListPlace place = {};
};

/// Answers WM_GETOBJECT for a window by the system's own accessible object, but with that name,
/// role, value and description. 0 when the system has none.
LRESULT answer_with(HWND window, WPARAM wparam, const Spoken& spoken);

}  // namespace quenda

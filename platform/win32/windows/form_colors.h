#pragma once

#include "platform/controls/color_scheme.h"
#include "platform/controls/control.h"
#include "platform/win32/windows_headers.h"

namespace quenda {

/// The colours of a form's window, as the user wants them.
class FormColors {
 public:
  [[nodiscard]] const ColorScheme& scheme() const { return scheme_; }
  [[nodiscard]] bool dark() const { return scheme_.mode == LookMode::kDark; }
  /// Asks the system anew, and has it draw the frame of the window accordingly.
  void follow(HWND window);
  /// The answer to a control that asks by one of the WM_CTLCOLOR messages for its colours and the
  /// brush behind it; null for a window that is no control of the form. 0 leaves it to the system.
  [[nodiscard]] INT_PTR answer(UINT message, WPARAM dc, const Control* control) const;

 private:
  ColorScheme scheme_;
};

}  // namespace quenda

#include "platform/win32/windows/form_colors.h"

#include "platform/win32/handles.h"
#include "platform/win32/windows/dark_frame.h"
#include "platform/win32/windows/look.h"

namespace quenda {

void FormColors::follow(HWND window) {
  const bool was_dark = dark();
  scheme_ = wanted_colors();
  if (dark() != was_dark) set_dark_frame(window, dark());
}

INT_PTR FormColors::answer(UINT message, WPARAM dc, const Control* control) const {
  // The list that a combo box opens is no control of the form, nor is the form itself.
  if (control == nullptr && !dark()) return 0;
  const bool field = message == WM_CTLCOLORLISTBOX || message == WM_CTLCOLOREDIT;
  const Tone behind = control != nullptr ? tone_behind(*control)
                      : field            ? Tone::kField
                                         : Tone::kFace;
  auto* const surface = from_lparam<HDC__>(static_cast<LPARAM>(dc));
  SetTextColor(surface, native(scheme_[behind == Tone::kField ? Tone::kFieldText : Tone::kText]));
  SetBkColor(surface, native(scheme_[behind]));
  return as_lparam(brush_in(surface, scheme_[behind]));
}

}  // namespace quenda

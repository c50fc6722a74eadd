#include "platform/win32/windows/focus_keeper.h"

#include <utility>

#include "platform/win32/windows/form_window.h"

namespace quenda {

bool FocusKeeper::can_take(HWND control) const {
  if (control == nullptr) return false;
  for (HWND at = control; at != nullptr && at != form_.window(); at = GetParent(at)) {
    const LONG_PTR style = GetWindowLongPtrW(at, GWL_STYLE);
    if ((style & WS_DISABLED) != 0 || (style & WS_VISIBLE) == 0) return false;
  }
  return true;
}

bool FocusKeeper::is_lost() const {
  const HWND focus = GetFocus();
  return focus == nullptr || focus == form_.window() || !can_take(focus);
}

void FocusKeeper::settle(bool idle) {
  if (GetActiveWindow() != form_.window()) return;
  // A control under the pressed mouse button keeps the focus, or it would not be clicked.
  if (GetCapture() != nullptr) return;
  give_wanted();
  if (idle) wanted_ = nullptr;
  if (idle && (resting_ || page_is_new_ || is_lost())) find_place();
  if (!idle && !rests() && is_lost()) rest();
  // A button that got the focus back when the window did is not yet the one that Enter presses.
  const HWND focus = GetFocus();
  if (idle && IsChild(form_.window(), focus) != 0 &&
      (SendMessageW(focus, WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON) != 0) {
    move_to(focus);
  }
}

bool FocusKeeper::give_wanted() {
  if (wanted_ == nullptr || !can_take(wanted_->window())) return false;
  give(*std::exchange(wanted_, nullptr));
  resting_ = false;
  return true;
}

void FocusKeeper::give(NativeControl& control) {
  const NativeControl::Mute mute(control);
  move_to(control.window());
  // The system selects the whole text of a field; a field that selects for itself knows better.
  if (control.control().on_got_focus) control.refresh(Aspect::kSelection);
}

/// By the message that also moves the mark of the button that Enter presses. A label leads to the
/// field behind it.
void FocusKeeper::move_to(HWND control) {
  const HWND form = form_.window();
  const bool label = (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0;
  const HWND to = label ? GetNextDlgTabItem(form, control, FALSE) : control;
  if (to != nullptr) SendMessageW(form, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(to), TRUE);
}

/// Without selecting a field's text and without making a button the one that Enter presses.
void FocusKeeper::lend(NativeControl& control) {
  const NativeControl::Mute mute(control);
  SetFocus(control.window());
}

bool FocusKeeper::rests() const { return resting_; }

bool FocusKeeper::drops(const MSG& message) const {
  return resting_ && message.message == WM_KEYDOWN && message.hwnd == form_.window() &&
         message.wParam != VK_TAB && message.wParam != VK_ESCAPE;
}

void FocusKeeper::rest() {
  if (!resting_) back_to_ = focused_;
  resting_ = true;
  SetFocus(form_.window());
}

void FocusKeeper::find_place() {
  resting_ = false;
  const bool new_page = std::exchange(page_is_new_, false);
  NativeControl* const back_to = std::exchange(back_to_, nullptr);
  const bool on_page = back_to != nullptr && back_to->control().parent() != nullptr;
  if (!new_page && on_page && can_take(back_to->window())) return lend(*back_to);
  if (form_.form().on_got_focus) form_.form().on_got_focus();
  form_.show_changes();
  if (give_wanted()) return;
  const HWND first = GetNextDlgTabItem(form_.window(), nullptr, FALSE);
  if (first != nullptr) move_to(first);
}

}  // namespace quenda

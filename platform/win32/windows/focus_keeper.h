#pragma once

#include "platform/win32/controls/native_control.h"

namespace quenda {

/// Sees to it that the keyboard always leads somewhere. Keys go nowhere while the control that had
/// the focus is hidden or disabled: inside long work the window itself takes them. Escape and Tab
/// work there, and a blank meant for the button before does not stop the work, as it would if the
/// button that does had the focus. Afterwards the field in which the user was typing gets the focus
/// back, or the first control of a page that has come into view takes it.
class FocusKeeper {
 public:
  explicit FocusKeeper(FormWindow& form) : form_(form) {}

  /// The form asks for the focus on a control; it gets it as soon as it can take it.
  void want(NativeControl& control) { wanted_ = &control; }
  /// The control has the focus now.
  void took(NativeControl& control) { focused_ = &control; }
  /// A page has come into view.
  void page_shown() { page_is_new_ = true; }
  /// Whether the window itself has the focus because no control can take it.
  [[nodiscard]] bool rests() const;
  /// Whether a key has nothing to act on while the focus rests: an arrow key would lead to a
  /// button.
  [[nodiscard]] bool drops(const MSG& message) const;
  /// To be called when the waiting input has been handled; `idle` is false inside long work.
  void settle(bool idle);

 private:
  [[nodiscard]] bool is_lost() const;
  [[nodiscard]] bool can_take(HWND control) const;
  bool give_wanted();
  void give(NativeControl& control);
  void move_to(HWND control);
  static void lend(NativeControl& control);
  void rest();
  void find_place();

  FormWindow& form_;
  NativeControl* wanted_ = nullptr;
  NativeControl* focused_ = nullptr;
  NativeControl* back_to_ = nullptr;
  bool resting_ = false;
  bool page_is_new_ = false;
};

}  // namespace quenda

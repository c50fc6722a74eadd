#pragma once

#include "platform/win32/windows_headers.h"

namespace quenda {

/// Keeps a press from reaching what has only just come up under the hand. Or else the second click
/// of a double click on "next" presses what stands in the same place on the page that follows, the
/// same goes for a dialog that follows a dialog and for what lies under a dialog that closes, and a
/// held key runs through all of them. What has come up takes no click, no Enter and no blank for
/// the system's double-click time, and never the repeats of a held key. Alt letters lose their
/// repeats only, so that quick keyboard users are not held up.
class PressGuard {
 public:
  /// Another window takes the input: nothing in it is what was pressed before.
  void window_came_up();
  /// The window shows something else now, all but one control (null for none).
  void content_changed(HWND unchanged);
  /// Whether the message is to be dropped. Text that is typed into a field always comes through.
  [[nodiscard]] bool holds_back(const MSG& message) const;

 private:
  [[nodiscard]] bool too_early(const MSG& message) const;

  ULONGLONG came_up_ = 0;  // milliseconds since the system's start
  bool whole_window_ = false;
  HWND unchanged_ = nullptr;
};

/// Has the guard look at the messages of the dialogs that the system runs itself (message boxes,
/// the file dialog) for as long as it lives, and tells it when they come and go.
class SystemDialogGuard {
 public:
  explicit SystemDialogGuard(PressGuard& presses);
  SystemDialogGuard(const SystemDialogGuard&) = delete;
  SystemDialogGuard& operator=(const SystemDialogGuard&) = delete;
  ~SystemDialogGuard();

 private:
  PressGuard& presses_;
  PressGuard* before_;
  HHOOK hook_;
};

}  // namespace quenda

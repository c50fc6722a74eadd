#include "platform/win32/windows/events_win32.h"

#include <algorithm>

namespace quenda {
namespace {

/// Keeps a window from taking input while a dialog stands over it.
class OwnerLock {
 public:
  explicit OwnerLock(HWND owner) : owner_(owner), was_enabled_(IsWindowEnabled(owner) != 0) {
    EnableWindow(owner_, FALSE);
  }
  OwnerLock(const OwnerLock&) = delete;
  OwnerLock& operator=(const OwnerLock&) = delete;
  ~OwnerLock() {
    if (was_enabled_) EnableWindow(owner_, TRUE);
  }

 private:
  HWND owner_;
  bool was_enabled_;
};

}  // namespace

void Win32Events::show(Form& form) {
  windows_.push_back(std::make_unique<FormWindow>(loop_, form, nullptr));
  windows_.back()->show();
}

void Win32Events::show_modal(Form& form, Form& owner) {
  loop_.show_changes();
  {
    FormWindow dialog(loop_, form, window_of(owner));
    // Unlocked before the dialog goes, or the system would bring another program's window forward.
    const OwnerLock lock(window_of(owner));
    dialog.show();
    loop_.run_while([&] { return form.loaded(); });
  }
  // What lies under the dialog is not what was pressed in it.
  loop_.presses().window_came_up();
  loop_.rethrow();
}

void Win32Events::run() {
  loop_.run_while([&] {
    return std::any_of(windows_.begin(), windows_.end(),
                       [](const auto& window) { return window->form().loaded(); });
  });
  close_all();
}

HWND window_of(const Form& form) {
  const auto* const window = static_cast<const FormWindow*>(form.peer());
  return window == nullptr ? nullptr : window->window();
}

}  // namespace quenda

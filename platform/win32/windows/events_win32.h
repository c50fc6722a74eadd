#pragma once

#include <memory>
#include <vector>

#include "platform/controls/events.h"
#include "platform/win32/windows/form_window.h"
#include "platform/win32/windows/message_loop.h"

namespace quenda {

/// Shows forms in windows of the system.
class Win32Events : public Events {
 public:
  explicit Win32Events(MessageLoop& loop) : loop_(loop) {}

  void yield() override { loop_.yield(); }
  void show(Form& form) override;
  void show_modal(Form& form, Form& owner) override;

  /// Handles input until every form that was shown has been unloaded.
  void run();
  /// Takes the windows away, before the forms go. Needed when the program ends in a hurry.
  void close_all() noexcept { windows_.clear(); }

 private:
  MessageLoop& loop_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
};

/// The window of a form that is shown; null for one that is not.
HWND window_of(const Form& form);

}  // namespace quenda

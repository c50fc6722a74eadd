#pragma once

#include "platform/machine.h"
#include "platform/win32/clock_win32.h"
#include "platform/win32/com/automation_com.h"
#include "platform/win32/dde_server.h"
#include "platform/win32/files_win32.h"
#include "platform/win32/system_win32.h"
#include "platform/win32/windows/dialogs_win32.h"
#include "platform/win32/windows/events_win32.h"
#include "platform/win32/windows/message_loop.h"

namespace quenda {

/// Everything that the windowed tool needs from the system.
class Win32Platform {
 public:
  Win32Platform() : link_(loop_, system_.executable_name()) {}

  [[nodiscard]] Machine machine() {
    return {files_, clock_, events_, dialogs_, system_, link_, automation_};
  }
  [[nodiscard]] Win32Events& events() { return events_; }

 private:
  MessageLoop loop_;
  Win32Files files_;
  Win32Clock clock_;
  Win32Events events_{loop_};
  Win32Dialogs dialogs_{loop_};
  Win32System system_;
  DdeServer link_;
  ComAutomation automation_{[this] { loop_.yield(); }};
};

}  // namespace quenda

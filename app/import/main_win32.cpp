#include "app/fMain.h"
#include "platform/win32/platform_win32.h"
#include "settings/app.h"
#include "text/fault.h"

namespace {

void run(quenda::Win32Platform& platform) {
  quenda::App app(platform.machine());
  quenda::fMain form(app);
  try {
    form.Form_Load();
    platform.events().show(form);
    platform.events().run();
  } catch (const quenda::EndProgram&) {
    // The usual end: closing the window, cancelling, and a start that was refused.
  }
  // The windows go before the controls that they show.
  platform.events().close_all();
}

}  // namespace

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*command_line*/,
                   int /*show*/) {
  quenda::Win32Platform platform;
  run(platform);
  return 0;
}

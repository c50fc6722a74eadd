#include "app/fMain.h"
#include "app/program.h"
#include "platform/win32/platform_win32.h"
#include "settings/app.h"
#include "text/fault.h"

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*command_line*/,
                   int /*show*/) {
  quenda::Win32Platform platform;
  quenda::App app(platform.machine());
  quenda::fMain form(app);
  try {
    quenda::run_program(app, form, [&] {
      platform.events().show(form);
      platform.events().run();
    });
  } catch (const quenda::EndProgram&) {
    // The usual end: closing the window, cancelling, and a start that was refused.
  }
  // The windows go before the controls that they show.
  platform.events().close_all();
  return 0;
}

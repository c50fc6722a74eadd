#include <string>

#include "app/fMain.h"
#include "app/program.h"
#include "platform/win32/library_folders.h"
#include "platform/win32/platform_win32.h"
#include "platform/win32/text_win32.h"
#include "settings/app.h"
#include "support/build_version.h"
#include "text/fault.h"
#include "text/text.h"

namespace {

/// Tells the version when nothing but "--version" was asked for: to whoever reads the output, or in
/// a box where nobody does.
bool tell_version(const quenda::Machine& machine) {
  const std::string line = machine.system.command_line();
  if (line.find("--version") == line.npos || line.find("/i") != line.npos) return false;
  const std::string text = quenda::concat("Import ", quenda::build_version(), "\n");
  DWORD written = 0;
  if (WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()),
                &written, nullptr) == FALSE) {
    machine.dialogs.message_box(text, quenda::MessageStyle::kInformation, "Quenda - Import");
  }
  return true;
}

/// The version as the last line of the window's own menu, where it takes no click.
void show_version(HWND window) {
  const HMENU menu = GetSystemMenu(window, FALSE);
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING | MF_GRAYED, 0,
              quenda::wide(quenda::concat("Import ", quenda::build_version())).c_str());
}

}  // namespace

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*command_line*/,
                   int /*show*/) {
  quenda::load_from_system_folders_only();
  quenda::Win32Platform platform;
  if (tell_version(platform.machine())) return 0;
  quenda::App app(platform.machine());
  quenda::fMain form(app);
  try {
    quenda::run_program(app, form, [&] {
      platform.events().show(form);
      show_version(quenda::window_of(form));
      platform.events().run();
    });
  } catch (const quenda::EndProgram&) {
    // The usual end: closing the window, cancelling, and a start that was refused.
  }
  // The windows go before the controls that they show.
  platform.events().close_all();
  return 0;
}

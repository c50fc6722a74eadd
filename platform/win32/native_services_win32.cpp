#include "platform/native_services.h"

#include <memory>

#include "platform/win32/clock_win32.h"
#include "platform/win32/com/automation_com.h"
#include "platform/win32/files_win32.h"
#include "platform/win32/handles.h"
#include "platform/win32/library_folders.h"
#include "platform/win32/system_win32.h"
// windows.h has to come first.
#include <shellapi.h>

namespace quenda {
namespace {

bool is_terminal(DWORD stream) {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(stream), &mode) != 0;
}

std::string utf8_of(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), size, nullptr, nullptr);
  result.pop_back();
  return result;
}

}  // namespace

std::unique_ptr<Files> native_files() { return std::make_unique<Win32Files>(); }
std::unique_ptr<Clock> native_clock() { return std::make_unique<Win32Clock>(); }
std::unique_ptr<System> native_system() { return std::make_unique<Win32System>(); }
std::unique_ptr<Automation> native_automation() {
  return std::make_unique<ComAutomation>([] {});
}

void keep_memory() {
  // The system's own heap decides.
}

bool console_is_interactive() {
  return is_terminal(STD_INPUT_HANDLE) && is_terminal(STD_ERROR_HANDLE);
}

bool console_shows_progress() { return is_terminal(STD_ERROR_HANDLE); }

bool console_shows_results() { return is_terminal(STD_OUTPUT_HANDLE); }

std::vector<std::string> console_arguments(int /*argc*/, char** /*argv*/) {
  load_from_system_folders_only();
  SetConsoleOutputCP(CP_UTF8);
  int count = 0;
  using Arguments = Handle<LPWSTR*, &LocalFree>;
  const Arguments arguments(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> result;
  for (int i = 1; arguments && i < count; ++i) result.push_back(utf8_of(arguments.get()[i]));
  return result;
}

}  // namespace quenda

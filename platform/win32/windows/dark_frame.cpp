#include "platform/win32/windows/dark_frame.h"

namespace quenda {
namespace {

/// A function of a library in the system's folder, which is loaded when first asked for and stays;
/// null where the system has none.
template <class Function>
Function system_function(const wchar_t* library, const char* name) {
  const HMODULE loaded = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (loaded == nullptr) return nullptr;
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(loaded, name)));
}

}  // namespace

void set_dark_frame(HWND window, bool dark) {
  using SetAttribute = HRESULT(WINAPI*)(HWND, DWORD, const void*, DWORD);
  static const auto set_attribute =
      system_function<SetAttribute>(L"dwmapi.dll", "DwmSetWindowAttribute");
  if (set_attribute == nullptr) return;
  // The number since Windows 10 version 2004, and the one before.
  constexpr DWORD kUseDarkFrame = 20;
  constexpr DWORD kUseDarkFrameBefore = 19;
  const BOOL wanted = dark ? TRUE : FALSE;
  if (FAILED(set_attribute(window, kUseDarkFrame, &wanted, sizeof wanted))) {
    set_attribute(window, kUseDarkFrameBefore, &wanted, sizeof wanted);
  }
}

void set_dark_scroll_bars(HWND list, bool dark) {
  using SetTheme = HRESULT(WINAPI*)(HWND, const wchar_t*, const wchar_t*);
  static const auto set_theme = system_function<SetTheme>(L"uxtheme.dll", "SetWindowTheme");
  if (set_theme != nullptr) set_theme(list, dark ? L"DarkMode_Explorer" : nullptr, nullptr);
}

}  // namespace quenda

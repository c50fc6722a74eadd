#include "tools/driver/driver_window.h"

#include <algorithm>
#include <array>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr DWORD kPollInterval = 10;  // milliseconds
constexpr UINT kAnswerTime = 5000;   // milliseconds; a window that is busy for longer has hung

BOOL CALLBACK collect(HWND window, LPARAM list) {
  if (IsWindowVisible(window) != 0) {
    from_lparam<std::vector<Window>>(list)->push_back(Window(window));
  }
  return TRUE;
}

}  // namespace

bool becomes(const std::function<bool()>& condition, int seconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(seconds) * 1000;
  while (!condition()) {
    if (GetTickCount64() > end) return false;
    Sleep(kPollInterval);
  }
  return true;
}

bool Window::enabled() const {
  for (HWND at = handle_; at != nullptr; at = GetAncestor(at, GA_PARENT)) {
    if (at == GetDesktopWindow()) break;
    if (IsWindowEnabled(at) == 0) return false;
  }
  return exists();
}

bool Window::focused() const { return focus_of(*this) == *this; }

bool Window::is(std::wstring_view window_class) const {
  std::array<wchar_t, 64> name{};
  const int length = GetClassNameW(handle_, name.data(), static_cast<int>(name.size()));
  return CompareStringOrdinal(name.data(), length, window_class.data(),
                              static_cast<int>(window_class.size()), TRUE) == CSTR_EQUAL;
}

bool Window::checked() const { return SendMessageW(handle_, BM_GETCHECK, 0, 0) == BST_CHECKED; }

RECT Window::place() const {
  RECT place{};
  GetWindowRect(handle_, &place);
  return place;
}

std::string Window::raw_text() const {
  std::array<wchar_t, 2048> units{};
  DWORD_PTR length = 0;
  SendMessageTimeoutW(handle_, WM_GETTEXT, units.size(), as_lparam(units.data()), SMTO_ABORTIFHUNG,
                      kAnswerTime, &length);
  return nearest_1252({units.data(), length});
}

std::string Window::text() const {
  std::string text = raw_text();
  if (is(WC_EDITW)) return text;
  const auto mark = text.find('&');
  if (mark != text.npos) text.erase(mark, 1);
  return text;
}

char Window::alt_letter() const {
  if (is(WC_STATICW) && (GetWindowLongPtrW(handle_, GWL_STYLE) & SS_NOPREFIX) != 0) return 0;
  if (!is(WC_STATICW) && !is(WC_BUTTONW)) return 0;
  const std::string text = raw_text();
  const auto mark = text.find('&');
  return mark == text.npos || mark + 1 == text.size() ? '\0'
                                                      : to_lower(text.substr(mark + 1, 1))[0];
}

std::vector<Window> Window::controls() const {
  std::vector<Window> found;
  EnumChildWindows(handle_, &collect, as_lparam(&found));
  return found;
}

Window Window::find(std::string_view text) const {
  for (const Window& control : controls()) {
    if (!control.is(WC_STATICW) && control.text() == text) return control;
  }
  return {};
}

Window Window::after(std::string_view label, int next) const {
  const auto all = controls();
  auto at = std::find_if(all.begin(), all.end(), [&](const Window& control) {
    return control.is(WC_STATICW) && control.text() == label;
  });
  if (at == all.end()) return {};
  for (++at; at != all.end(); ++at) {
    if (at->is(WC_STATICW)) continue;
    if (next-- == 0) return *at;
  }
  return {};
}

bool Window::shows(std::string_view text) const {
  const auto all = controls();
  return std::any_of(all.begin(), all.end(), [&](const Window& control) {
    return (control.is(WC_STATICW) || control.is(WC_BUTTONW)) && control.text() == text;
  });
}

Window Window::first(std::wstring_view window_class) const {
  for (const Window& control : controls()) {
    if (control.is(window_class)) return control;
  }
  return {};
}

std::vector<Window> windows_of(DWORD process) {
  std::vector<Window> all;
  EnumWindows(&collect, as_lparam(&all));
  const auto foreign = [process](const Window& window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window.handle(), &owner);
    return owner != process;
  };
  all.erase(std::remove_if(all.begin(), all.end(), foreign), all.end());
  return all;
}

Window window_titled(std::string_view title) {
  const HWND found = FindWindowW(nullptr, wide(title).c_str());
  return IsWindowVisible(found) != 0 ? Window(found) : Window();
}

Window focus_of(const Window& window) {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(window.handle(), nullptr), &thread);
  return Window(thread.hwndFocus);
}

}  // namespace quenda

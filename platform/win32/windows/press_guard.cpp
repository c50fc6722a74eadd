#include "platform/win32/windows/press_guard.h"

#include <algorithm>
#include <utility>

#include "platform/win32/handles.h"

namespace quenda {
namespace {

// The system hands its hook no context.
PressGuard* the_guard = nullptr;  // NOLINT(*-avoid-non-const-global-variables)

bool is_repeat(const MSG& message) {
  constexpr LPARAM kWasDown = LPARAM{1} << 30;
  return (message.lParam & kWasDown) != 0;
}

bool types_blank(const MSG& message) {
  return message.wParam == VK_SPACE &&
         (SendMessageW(message.hwnd, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0;
}

LRESULT CALLBACK guard_dialog(int code, WPARAM wparam, LPARAM lparam) noexcept {
  const bool dropped = code == MSGF_DIALOGBOX && the_guard != nullptr &&
                       the_guard->holds_back(*from_lparam<MSG>(lparam));
  return dropped ? 1 : CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace

void PressGuard::window_came_up() {
  came_up_ = GetTickCount64();
  whole_window_ = true;
}

void PressGuard::content_changed(HWND unchanged) {
  const ULONGLONG now = GetTickCount64();
  // A window that has only just come up is new as a whole, whatever changes in it.
  if (now >= came_up_ + GetDoubleClickTime()) whole_window_ = false;
  came_up_ = now;
  unchanged_ = unchanged;
}

/// By the time of the press itself: one that waited while the program was at work belongs to what
/// the user saw then.
bool PressGuard::too_early(const MSG& message) const {
  if (!whole_window_ && message.hwnd == unchanged_) return false;
  const auto age = static_cast<LONG>(GetTickCount() - message.time);
  const ULONGLONG pressed = GetTickCount64() - static_cast<ULONGLONG>(std::max(age, LONG{0}));
  return came_up_ != 0 && pressed < came_up_ + GetDoubleClickTime();
}

bool PressGuard::holds_back(const MSG& message) const {
  switch (message.message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      return too_early(message);
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
      return message.wParam == HTCLOSE && whole_window_ && too_early(message);
    case WM_SYSKEYDOWN:
      return message.wParam != VK_MENU && is_repeat(message);
    case WM_KEYDOWN:
      break;
    default:
      return false;
  }
  switch (message.wParam) {
    case VK_RETURN:
    case VK_SPACE:
      return !types_blank(message) && (is_repeat(message) || too_early(message));
    case VK_ESCAPE:
      // What leads out of a page leads out of the next one, too, but not out of another window.
      return is_repeat(message) || (whole_window_ && too_early(message));
    default:
      return false;
  }
}

SystemDialogGuard::SystemDialogGuard(PressGuard& presses)
    : presses_(presses),
      before_(std::exchange(the_guard, &presses)),
      hook_(SetWindowsHookExW(WH_MSGFILTER, &guard_dialog, nullptr, GetCurrentThreadId())) {
  presses_.window_came_up();
}

SystemDialogGuard::~SystemDialogGuard() {
  if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
  the_guard = before_;
  presses_.window_came_up();
}

}  // namespace quenda

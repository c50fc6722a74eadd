#include "tools/driver/driver_input.h"

#include <gtest/gtest.h>

#include "platform/win32/text_win32.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr int kArrivalTime = 2;  // seconds
constexpr int kAttempts = 4;     // an input right after a window has appeared can get lost

void send_key(WORD key, WORD unit, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = unit;
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

/// With the place in every event: the pointer of the display follows only after a while.
void send_mouse(DWORD flags, POINT at) {
  constexpr LONG kWhole = 0x10000;  // the width and the height of the screen
  const auto share = [](LONG position, int metric) {
    const LONG size = GetSystemMetrics(metric);
    return (position * kWhole + size / 2) / size;
  };
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = share(at.x, SM_CXSCREEN);
  input.mi.dy = share(at.y, SM_CYSCREEN);
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  SendInput(1, &input, sizeof input);
}

/// What has just come up takes no press: a user waits, too, to see what it is.
void look_first() { Sleep(GetDoubleClickTime() + 20); }

POINT on_screen(const Window& control, POINT point) {
  const RECT place = control.place();
  return {place.left + point.x, place.top + point.y};
}

/// Whether the thread of the control has seen the button go down: pressed controls capture the
/// mouse, others take the focus.
bool took_press(const Window& control, HWND focus_before) {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(control.handle(), nullptr), &thread);
  if (thread.hwndCapture != nullptr) return true;
  return thread.hwndFocus != focus_before &&
         (thread.hwndFocus == control.handle() || IsChild(control.handle(), thread.hwndFocus) != 0);
}

bool press_button_at(const Window& control, POINT point) {
  const POINT at = on_screen(control, point);
  const auto under_mouse = [&] {
    SetCursorPos(at.x, at.y);
    const HWND under = WindowFromPoint(at);
    return under == control.handle() || IsChild(control.handle(), under) != 0 ||
           IsChild(under, control.handle()) != 0;
  };
  if (!becomes(under_mouse, kArrivalTime)) return false;
  const HWND before = focus_of(control).handle();
  // A list that has the focus already need not show the press; the caller looks at its selection.
  if (before == control.handle() && !control.is(WC_BUTTONW)) {
    send_mouse(MOUSEEVENTF_LEFTDOWN, at);
    return true;
  }
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    send_mouse(MOUSEEVENTF_LEFTDOWN, at);
    if (becomes([&] { return took_press(control, before) || !control.exists(); }, 1)) return true;
    send_mouse(MOUSEEVENTF_LEFTUP, at);
  }
  return false;
}

}  // namespace

void wait_until_active(const Window& window) {
  const auto active = [&] {
    if (GetForegroundWindow() == window.handle()) return focus_of(window).handle() != nullptr;
    SetForegroundWindow(window.handle());
    return false;
  };
  EXPECT_TRUE(becomes(active)) << window.text() << " does not come to the front";
}

void press(Key key) {
  if (key == Key::kEnter || key == Key::kBlank || key == Key::kEscape) look_first();
  press_at_once(key);
}

void press_at_once(Key key) {
  send_key(static_cast<WORD>(key), 0, 0);
  send_key(static_cast<WORD>(key), 0, KEYEVENTF_KEYUP);
}

void hold(Key key, int repeats) {
  look_first();
  for (int i = 0; i <= repeats; ++i) send_key(static_cast<WORD>(key), 0, 0);
  send_key(static_cast<WORD>(key), 0, KEYEVENTF_KEYUP);
}

void press_with(WORD modifier, WORD key) {
  send_key(modifier, 0, 0);
  send_key(key, 0, 0);
  send_key(key, 0, KEYEVENTF_KEYUP);
  send_key(modifier, 0, KEYEVENTF_KEYUP);
}

void type(std::string_view text) {
  for (const wchar_t unit : wide(text)) {
    send_key(0, static_cast<WORD>(unit), KEYEVENTF_UNICODE);
    send_key(0, static_cast<WORD>(unit), KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
  }
}

void fill(const Window& field, std::string_view text) {
  if (!field.focused()) click(field);
  EXPECT_TRUE(becomes([&] { return field.focused(); })) << "the field does not get the focus";
  const auto type_over = [&] {
    SendMessageW(field.handle(), EM_SETSEL, 0, -1);
    if (text.empty()) {
      press(Key::kDelete);
    } else {
      type(text);
    }
    return becomes([&] { return field.text() == text; }, 2 * kArrivalTime);
  };
  // A click that arrives late takes the selection back: a user would type again.
  bool done = false;
  for (int attempt = 0; attempt < kAttempts && !done; ++attempt) done = type_over();
  EXPECT_TRUE(done) << field.text();
}

void click(const Window& control) {
  const RECT place = control.place();
  click_at(control, {(place.right - place.left) / 2, (place.bottom - place.top) / 2});
}

void click_at(const Window& control, POINT point) {
  EXPECT_TRUE(control.visible() && control.enabled()) << control.text() << " cannot be clicked";
  const POINT at = on_screen(control, point);
  look_first();
  EXPECT_TRUE(press_button_at(control, point)) << control.text() << " takes no click";
  send_mouse(MOUSEEVENTF_LEFTUP, at);
}

/// Without a look in between: on a busy machine it would take longer than a double click.
void double_click_at(const Window& control, POINT point) {
  EXPECT_TRUE(control.visible() && control.enabled()) << control.text() << " cannot be clicked";
  look_first();
  const POINT at = on_screen(control, point);
  for (int click = 0; click < 2; ++click) {
    send_mouse(MOUSEEVENTF_LEFTDOWN, at);
    send_mouse(MOUSEEVENTF_LEFTUP, at);
  }
}

void click_twice(const Window& control, DWORD pause) {
  const RECT place = control.place();
  const POINT at{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  click(control);
  Sleep(pause);
  send_mouse(MOUSEEVENTF_LEFTDOWN, at);
  send_mouse(MOUSEEVENTF_LEFTUP, at);
}

void set_double_click_time(UINT milliseconds) {
  SystemParametersInfoW(SPI_SETDOUBLECLICKTIME, milliseconds, nullptr, 0);
}

void press_alt_f4() { press_with(VK_MENU, VK_F4); }

}  // namespace quenda

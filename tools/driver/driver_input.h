#pragma once

#include <string_view>

#include "tools/driver/driver_window.h"

// Keys and mouse as the system gets them from the devices. Each function ends when the tool has
// been seen to take the input, and fails the test when it does not.
namespace quenda {

/// Keys of the keyboard that no character stands for.
enum class Key : WORD {
  kEnter = VK_RETURN,
  kEscape = VK_ESCAPE,
  kBackspace = VK_BACK,
  kTab = VK_TAB,
  kBlank = VK_SPACE,
  kDelete = VK_DELETE,
  kHome = VK_HOME,
  kDown = VK_DOWN,
};

/// Waits until the window is the one that the user works in.
void wait_until_active(const Window& window);

/// Enter and the blank once what can be seen takes them.
void press(Key key);
/// Without a look at what there is.
void press_at_once(Key key);
/// Holds a key down for so many repeats.
void hold(Key key, int repeats);
/// With Shift, Control or Alt (VK_SHIFT, VK_CONTROL, VK_MENU) held down.
void press_with(WORD modifier, WORD key);
/// Types characters into whatever has the focus.
void type(std::string_view text);
/// Types characters into the field, over what stands there, and waits until they stand there.
void fill(const Window& field, std::string_view text);

/// Presses the left button over the middle of a control.
void click(const Window& control);
/// The same at a point of the control, in pixels from its top left corner.
void click_at(const Window& control, POINT point);
void double_click_at(const Window& control, POINT point);
/// Two clicks in the same place, so many milliseconds apart, whatever has come up there meanwhile.
void click_twice(const Window& control, DWORD pause);
/// The time within which two clicks are a double click, for programs that start from now on.
void set_double_click_time(UINT milliseconds);
/// Asks the active window to close, as its close box does.
void press_alt_f4();

}  // namespace quenda

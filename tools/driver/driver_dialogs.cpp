#include "tools/driver/driver_dialogs.h"

#include <gtest/gtest.h>

#include "tools/driver/driver_input.h"

namespace quenda {

Window dialog_over(const Window& main) {
  DWORD process = 0;
  GetWindowThreadProcessId(main.handle(), &process);
  Window found;
  EXPECT_TRUE(becomes([&] {
    for (const Window& window : windows_of(process)) {
      if (!(window == main) && window.enabled() &&
          GetWindow(window.handle(), GW_OWNER) == main.handle()) {
        found = window;
        return true;
      }
    }
    return false;
  })) << "no dialog comes up";
  if (found) {
    wait_until_active(found);
    EXPECT_FALSE(main.enabled()) << "the main window can be used under the dialog";
  }
  return found;
}

std::string message_of(const Window& box) {
  std::string longest;
  for (const Window& control : box.controls()) {
    const std::string text = control.is(WC_STATICW) ? control.text() : "";
    if (text.size() > longest.size()) longest = text;
  }
  return longest;
}

void confirm(const Window& box) {
  press(Key::kEnter);
  EXPECT_TRUE(becomes([&] { return !box.visible(); })) << "the message stays";
}

void choose_file(const Window& dialog, std::string_view path) {
  ASSERT_TRUE(becomes([&] { return focus_of(dialog).is(WC_EDITW); })) << "the name cannot be typed";
  const Window field = focus_of(dialog);
  fill(field, path);
  press(Key::kEnter);
  EXPECT_TRUE(becomes([&] { return !dialog.visible(); })) << "the file dialog stays";
}

}  // namespace quenda

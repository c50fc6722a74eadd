#include <gtest/gtest.h>

#include <cstdio>

#include "tools/driver/driver_input.h"

// Without a display no window of any program could be seen: that is no reason to skip, but to fail.
int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  const HWND probe = CreateWindowExW(0, WC_STATICW, L"probe", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10,
                                     nullptr, nullptr, nullptr, nullptr);
  if (IsWindowVisible(probe) == 0) {
    std::fputs("e2e_tests: windows cannot be shown here (no display?)\n", stderr);
    return 1;
  }
  DestroyWindow(probe);
  // What comes up takes no press for the double-click time, so the user here has to wait for it
  // before each of them. The setting is not stored.
  const UINT before = GetDoubleClickTime();
  quenda::set_double_click_time(120);
  const int result = RUN_ALL_TESTS();
  quenda::set_double_click_time(before);
  return result;
}

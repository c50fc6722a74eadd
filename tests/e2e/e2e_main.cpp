#include <gtest/gtest.h>

#include <cstdio>

#include "tests/e2e/driver_window.h"

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
  return RUN_ALL_TESTS();
}

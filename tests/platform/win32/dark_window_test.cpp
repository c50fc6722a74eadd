// What the user wants windows to look like, changed while one is open.
#include <gtest/gtest.h>

#include "tests/platform/win32/form_fixture.h"

namespace quenda {
namespace {

/// The user's wish for dark windows, for as long as it lives.
class DarkWindows {
 public:
  DarkWindows() {
    const DWORD light = 0;
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &light, sizeof light);
  }
  DarkWindows(const DarkWindows&) = delete;
  DarkWindows& operator=(const DarkWindows&) = delete;
  ~DarkWindows() { RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kValue); }

 private:
  static constexpr const wchar_t* kKey =
      L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
  static constexpr const wchar_t* kValue = L"AppsUseLightTheme";
};

class DarkWindowTest : public FormWindowTest {
 protected:
  /// Whether a control shows something dark near its left edge, where no text stands.
  [[nodiscard]] bool is_dark(const Control& control) const {
    return is_dark(window(control), 3, 8);
  }
  [[nodiscard]] static bool is_dark(HWND window, int x, int y) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    const WindowDc dc(window);
    const COLORREF color = GetPixel(dc.get(), x, y);
    return color != CLR_INVALID && GetRValue(color) < 100 && GetGValue(color) < 100;
  }
  void tell() {
    SendMessageW(window_of(form_), WM_SETTINGCHANGE, 0, as_lparam(L"ImmersiveColorSet"));
    loop_.pump();
  }
};

TEST_F(DarkWindowTest, EveryControlFollowsTheWishAndGoesBackWithIt) {
  form_.view.set_columns({{"Name", 1440, ColumnKind::kName}});
  form_.view.add_row({"Anna"});
  show();
  const Control* const all[] = {&form_.box,  &form_.text,  &form_.list,  &form_.view,
                                &form_.page, &form_.label, &form_.status};
  for (const Control* control : all) EXPECT_FALSE(is_dark(*control)) << control->name();
  {
    const DarkWindows wish;
    tell();
    for (const Control* control : all) EXPECT_TRUE(is_dark(*control)) << control->name();
    EXPECT_TRUE(is_dark(from_lparam<HWND__>(send(form_.view, LVM_GETHEADER)), 2, 2));
  }
  tell();
  for (const Control* control : all) EXPECT_FALSE(is_dark(*control)) << control->name();
}

}  // namespace
}  // namespace quenda

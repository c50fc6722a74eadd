#include <gtest/gtest.h>

#include "tests/platform/win32/form_fixture.h"

namespace quenda {
namespace {

TEST_F(FormWindowTest, AnotherScreensDpiScalesPlacesAndIsTakenFromTheMessage) {
  form_.set_resizable(true);
  form_.list.set_anchors(Anchor::kBoth, Anchor::kStart);
  show();
  const auto width = [&] {
    RECT area{};
    GetWindowRect(window(form_.list), &area);
    return area.right - area.left;
  };
  RECT place{};
  GetWindowRect(window_of(form_), &place);
  SetWindowPos(window_of(form_), nullptr, 0, 0, place.right - place.left + 60,
               place.bottom - place.top, SWP_NOMOVE | SWP_NOZORDER);
  loop_.pump();
  EXPECT_EQ(width(), 160);
  GetWindowRect(window_of(form_), &place);
  place.right += place.right - place.left;
  place.bottom += place.bottom - place.top;
  SendMessageW(window_of(form_), WM_DPICHANGED, MAKEWPARAM(192, 192), as_lparam(&place));
  loop_.pump();
  EXPECT_NEAR(width(), 320, 20) << "title bars and borders do not scale quite alike";
  EXPECT_EQ(laid_out(form_.go, 192, {}).width, 200);
}

/// The user's wish for larger text, for as long as it lives.
class LargerText {
 public:
  explicit LargerText(DWORD percent) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &percent, sizeof percent);
  }
  LargerText(const LargerText&) = delete;
  LargerText& operator=(const LargerText&) = delete;
  ~LargerText() { RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kValue); }

 private:
  static constexpr const wchar_t* kKey = L"Software\\Microsoft\\Accessibility";
  static constexpr const wchar_t* kValue = L"TextScaleFactor";
};

TEST_F(FormWindowTest, BoxesGrowWithTheTextThatTheUserWantsLarger) {
  show();
  const auto size = [&](HWND of) {
    RECT area{};
    GetWindowRect(of, &area);
    return SIZE{area.right - area.left, area.bottom - area.top};
  };
  const SIZE field = size(window(form_.text));
  const SIZE whole = size(window_of(form_));
  {
    const LargerText wish(200);
    SendMessageW(window_of(form_), WM_SETTINGCHANGE, 0, 0);
    loop_.pump();
    EXPECT_EQ(size(window(form_.text)).cx, 2 * field.cx);
    EXPECT_EQ(size(window(form_.text)).cy, 2 * field.cy);
    EXPECT_GT(size(window_of(form_)).cx, whole.cx + field.cx);
  }
  SendMessageW(window_of(form_), WM_SETTINGCHANGE, 0, 0);
  loop_.pump();
  EXPECT_EQ(size(window_of(form_)).cx, whole.cx);
}

TEST_F(FormWindowTest, APositionOutsideEveryScreenIsShownWithinAndKeptAsItIs) {
  form_.set_place({9'000'000, 9'000'000, 6000, 3000});
  show();
  RECT place{};
  GetWindowRect(window_of(form_), &place);
  EXPECT_NE(MonitorFromRect(&place, MONITOR_DEFAULTTONULL), nullptr);
  EXPECT_EQ(form_.place().left, 9'000'000);
  SetWindowPos(window_of(form_), nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(form_.place().left, 300) << "the user has moved it";
}

TEST_F(FormWindowTest, ADialogOpensOverTheMiddleOfItsOwner) {
  form_.set_place({1500, 6000, 9000, 4500});
  form_.set_outer_width(9000);
  show();
  TestForm asked;
  asked.set_place({0, 0, 4500, 1500});
  const FormWindow dialog(loop_, asked, window_of(form_));
  RECT owner{};
  RECT place{};
  GetWindowRect(window_of(form_), &owner);
  GetWindowRect(dialog.window(), &place);
  EXPECT_NEAR(place.left + place.right, owner.left + owner.right, 1);
  EXPECT_NEAR(place.top + place.bottom, owner.top + owner.bottom, 1);
}

}  // namespace
}  // namespace quenda

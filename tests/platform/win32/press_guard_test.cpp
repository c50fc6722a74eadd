#include "platform/win32/windows/press_guard.h"

#include <gtest/gtest.h>

#include "platform/win32/windows/dialogs_win32.h"
#include "tests/platform/win32/form_fixture.h"

namespace quenda {
namespace {

constexpr LPARAM kRepeat = LPARAM{1} << 30;

/// A user before two windows whose buttons lie in the same place. Presses go through the message
/// loop, as those of a real mouse and keyboard do.
class Presses : public FormWindowTest {
 protected:
  Presses() {
    form_.go.on_click = [this] { ++gone_; };
    form_.stop.on_click = [this] { ++stopped_; };
    form_.go.set_caption("Weiter");
    show();
    Sleep(kPause);
  }

  void click(const Control& control) {
    PostMessageW(window(control), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    PostMessageW(window(control), WM_LBUTTONUP, 0, 0);
    loop_.pump();
  }
  void press(const Control& control, WPARAM key, LPARAM flags = 0) {
    PostMessageW(window(control), WM_KEYDOWN, key, flags);
    PostMessageW(window(control), WM_KEYUP, key, 0);
    loop_.pump();
  }

  static constexpr DWORD kPause = kDoubleClickTime + 20;
  int gone_ = 0;
  int stopped_ = 0;
};

TEST_F(Presses, ASecondPressReachesNoPageThatHasJustComeUp) {
  form_.page.set_visible(false);
  form_.go.on_click = [this] {
    ++gone_;
    form_.page.set_visible(true);
  };
  click(form_.go);
  click(form_.go);
  press(form_.go, VK_RETURN);
  press(form_.go, VK_SPACE);
  EXPECT_EQ(gone_, 1);
  Sleep(kPause);
  press(form_.go, VK_RETURN);
  EXPECT_EQ(gone_, 2) << "a press of its own works";
}

TEST_F(Presses, AButtonWithAnotherCaptionIsAnotherButton) {
  form_.go.set_caption(
      "\xDC"
      "bernehmen");
  loop_.pump();
  click(form_.go);
  EXPECT_EQ(gone_, 0);
  click(form_.stop);
  press(form_.text, VK_ESCAPE);
  EXPECT_EQ(stopped_, 2) << "the one that stops everything means what it meant before";
}

TEST_F(Presses, APressThatWaitedDuringWorkBelongsToWhatWasSeenThen) {
  form_.go.on_click = [this] {
    ++gone_;
    PostMessageW(window(form_.go), WM_KEYDOWN, VK_RETURN, 0);
    Sleep(2 * kPause);
    form_.go.set_caption("Fertig");
  };
  click(form_.go);
  loop_.pump();
  EXPECT_EQ(gone_, 1);
}

TEST_F(Presses, AHeldKeyPressesOnceAndTypesOn) {
  press(form_.text, VK_RETURN);
  for (int i = 0; i < 3; ++i) press(form_.text, VK_RETURN, kRepeat);
  EXPECT_EQ(gone_, 1);
  press(form_.text, VK_ESCAPE, kRepeat);
  EXPECT_EQ(stopped_, 0);
  press(form_.text, VK_SPACE);
  press(form_.text, VK_SPACE, kRepeat);
  EXPECT_EQ(form_.text.text(), "  ");
}

TEST_F(Presses, NeitherADialogNorWhatLiesUnderItTakesThePressBefore) {
  TestForm dialog;
  int answers = 0;
  dialog.go.on_click = [&] { ++answers; };
  dialog.timer.set_interval(1);
  dialog.timer.on_timer = [&] {
    dialog.timer.set_enabled(false);
    click(dialog.go);
    press(dialog.text, VK_ESCAPE);
    EXPECT_EQ(answers, 0);
    Sleep(kPause);
    click(dialog.go);
    EXPECT_EQ(answers, 1);
    dialog.unload();
  };
  dialog.timer.set_enabled(true);
  events_.show_modal(dialog, form_);
  click(form_.go);
  press(form_.text, VK_ESCAPE);
  EXPECT_EQ(gone_ + stopped_, 0);
  Sleep(kPause);
  click(form_.go);
  EXPECT_EQ(gone_, 1);
}

TEST_F(Presses, AMessageBoxIsNotClosedByAHeldKey) {
  int seen = 0;
  form_.timer.set_interval(20);
  form_.timer.on_timer = [&] {
    const HWND box = FindWindowW(L"#32770", L"Meldung");
    if (box == nullptr) return;
    ++seen;
    PostMessageW(GetWindow(box, GW_CHILD), WM_KEYDOWN, VK_RETURN, seen < 5 ? kRepeat : 0);
  };
  form_.timer.set_enabled(true);
  const ULONGLONG begin = GetTickCount64();
  Win32Dialogs(loop_).message_box("Text", MessageStyle::kInformation, "Meldung");
  form_.timer.set_enabled(false);
  EXPECT_GE(seen, 5);
  EXPECT_GE(GetTickCount64() - begin, ULONGLONG{kDoubleClickTime});
}

}  // namespace
}  // namespace quenda

#include "platform/win32/windows/events_win32.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/win32/text_win32.h"
#include "platform/win32/windows/dialogs_win32.h"
#include "tests/platform/win32/form_fixture.h"
#include "text/fault.h"

namespace quenda {
namespace {

TEST_F(FormWindowTest, TheEndOfTheProgramPassesThroughNestedWork) {
  form_.go.on_click = [&] {
    PostMessageW(window(form_.stop), BM_CLICK, 0, 0);
    loop_.pump();
    ADD_FAILURE() << "work went on after the end";
  };
  form_.stop.on_click = [] { throw EndProgram{}; };
  show();
  PostMessageW(window(form_.go), BM_CLICK, 0, 0);
  EXPECT_THROW(loop_.pump(), EndProgram);
}

TEST_F(FormWindowTest, LongWorkIsStoppedOnlyByAKeyThatIsMeantForIt) {
  int stops = 0;
  form_.stop.set_always_usable();
  form_.stop.on_click = [&] { ++stops; };
  const auto press = [&](WPARAM key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 0);
    PostMessageW(GetFocus(), WM_KEYUP, key, 0);
    loop_.pump();
  };
  form_.go.on_click = [&] {
    form_.lock_input(true);
    loop_.pump();
    for (const auto key : {WPARAM{VK_SPACE}, WPARAM{VK_RETURN}, WPARAM{VK_DOWN}}) press(key);
    EXPECT_EQ(stops, 0) << "they were meant for the button before";
    press(VK_ESCAPE);
    EXPECT_EQ(stops, 1);
    press(VK_TAB);
    EXPECT_EQ(GetFocus(), window(form_.stop));
    press(VK_SPACE);
    EXPECT_EQ(stops, 2);
    form_.lock_input(false);
  };
  show();
  Sleep(kDoubleClickTime + 20);
  SetFocus(window(form_.go));
  send(form_.go, BM_CLICK);
  EXPECT_EQ(stops, 2);
}

TEST_F(FormWindowTest, ADialogLocksItsOwnerAndFreesItWhateverEndsIt) {
  show();
  const HWND owner = window_of(form_);
  for (const bool by_end : {false, true}) {
    TestForm dialog;
    dialog.timer.set_interval(10);
    dialog.timer.on_timer = [&] {
      EXPECT_FALSE(IsWindowEnabled(owner));
      SendMessageW(owner, WM_CLOSE, 0, 0);
      EXPECT_TRUE(form_.loaded()) << "a window under a dialog stays open";
      if (by_end) throw EndProgram{};
      dialog.unload();
    };
    dialog.timer.set_enabled(true);
    if (by_end) {
      EXPECT_THROW(events_.show_modal(dialog, form_), EndProgram);
    } else {
      events_.show_modal(dialog, form_);
    }
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(dialog.text.peer(), nullptr);
  }
}

TEST_F(FormWindowTest, AWindowThatAnotherProgramClosesIsGoneAtOnce) {
  // Such a message is handled while the loop waits, and does not end the waiting.
  std::atomic<bool> too_late = false;
  form_.on_unload = [] { throw EndProgram{}; };
  show();
  const HWND window = window_of(form_);
  const DWORD loop = GetCurrentThreadId();
  std::thread other([&] {
    Sleep(200);
    SendMessageW(window, WM_CLOSE, 0, 0);
    Sleep(1000);
    too_late = true;
    PostThreadMessageW(loop, WM_NULL, 0, 0);
  });
  EXPECT_THROW(events_.run(), EndProgram);
  EXPECT_FALSE(too_late);
  other.join();
}

TEST_F(FormWindowTest, TheEndOfTheSessionIsForTheMainWindowToHandle) {
  bool asked = true;
  bool ended = false;
  form_.on_unload = [&] { ended = true; };
  show();
  TestForm dialog;
  dialog.timer.set_interval(10);
  dialog.timer.on_timer = [&] {
    dialog.timer.set_enabled(false);
    SendMessageW(window_of(dialog), WM_ENDSESSION, TRUE, 0);
    asked = dialog.loaded();
    SendMessageW(window_of(form_), WM_ENDSESSION, TRUE, 0);
    dialog.unload();
  };
  dialog.timer.set_enabled(true);
  events_.show_modal(dialog, form_);
  EXPECT_TRUE(asked) << "an open question has not been answered by it";
  EXPECT_TRUE(ended);
}

TEST_F(FormWindowTest, AMessageBelongsToTheWindowEvenWhenTheUserWorksElsewhere) {
  show();
  SetActiveWindow(nullptr);
  SetForegroundWindow(GetDesktopWindow());
  ASSERT_EQ(GetActiveWindow(), nullptr);
  HWND owner = nullptr;
  form_.timer.set_interval(10);
  form_.timer.on_timer = [&] {
    const HWND box = FindWindowW(L"#32770", L"Meldung");
    if (box == nullptr) return;
    form_.timer.set_enabled(false);
    owner = GetWindow(box, GW_OWNER);
    PostMessageW(box, WM_CLOSE, 0, 0);
  };
  form_.timer.set_enabled(true);
  Win32Dialogs(loop_).message_box("Text", MessageStyle::kInformation, "Meldung");
  EXPECT_EQ(owner, window_of(form_));
}

TEST_F(FormWindowTest, AButtonMoreInABoxWorksWhileTheBoxStays) {
  show();
  int clicks = 0;
  std::wstring caption;
  form_.timer.set_interval(10);
  form_.timer.on_timer = [&] {
    const HWND box = FindWindowW(L"#32770", L"Meldung");
    if (box == nullptr) return;
    form_.timer.set_enabled(false);
    const HWND more = GetDlgItem(box, IDHELP);
    caption = window_text(more);
    for (int i = 0; i < 2; ++i) SendMessageW(more, BM_CLICK, 0, 0);
    EXPECT_NE(IsWindow(box), 0);
    SendMessageW(box, WM_COMMAND, IDOK, 0);
  };
  form_.timer.set_enabled(true);
  const MoreButton more{"Details", [&] { ++clicks; }};
  Win32Dialogs(loop_).message_box_with(more, "Text", MessageStyle::kExclamation, "Meldung");
  EXPECT_EQ(caption, L"Details");
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace quenda

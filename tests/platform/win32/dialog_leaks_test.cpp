// A user edits hundreds of entries in one sitting: each dialog has to give back whatever it took.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "app/fMain.h"
#include "book/pages/fImportItemEdit.h"
#include "book/pages/fImportMsg.h"
#include "book/pages/fOVWInput.h"
#include "platform/win32/handles.h"
#include "platform/win32/windows/events_win32.h"
#include "settings/app.h"
#include "tests/shared/fakes.h"

namespace quenda {
namespace {

using Menu = Handle<HMENU, &DestroyMenu>;

/// A number that grows with the objects of a kind that the process has: as the system tells, or,
/// where it tells nothing, the highest number among many that are made at once. Numbers that are
/// free again are given out before new ones.
template <class Made>
long objects(DWORD told, Made (*make)()) {
  if (told != 0) return static_cast<long>(told);
  std::array<Made, 256> many;
  std::generate(many.begin(), many.end(), make);
  const auto number = [](const Made& one) { return LOWORD(as_lparam(one.get())); };
  const auto highest =
      std::max_element(many.begin(), many.end(),
                       [&](const Made& a, const Made& b) { return number(a) < number(b); });
  return number(*highest);
}

/// Pieces of memory in use: the tool's own and those of components.
long pieces_of_memory() {
  std::array<HANDLE, 64> heaps{};
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  long pieces = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heaps.at(i));
    while (HeapWalk(heaps.at(i), &entry) != 0) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) ++pieces;
    }
    HeapUnlock(heaps.at(i));
  }
  return pieces;
}

struct Held {
  static DWORD told(DWORD kind) { return GetGuiResources(GetCurrentProcess(), kind); }
  static DWORD kernel_told() {
    DWORD count = 0;
    return GetProcessHandleCount(GetCurrentProcess(), &count) == 0 ? 0 : count;
  }

  long drawing = objects<Brush>(told(GR_GDIOBJECTS), [] { return Brush(CreateSolidBrush(0)); });
  long window = objects<Menu>(told(GR_USEROBJECTS), [] { return Menu(CreateMenu()); });
  long kernel = objects<KernelHandle>(
      kernel_told(), [] { return KernelHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr)); });
  long memory = pieces_of_memory();
};

/// The main form in its window, and a user who leaves each dialog by a button.
class DialogLeaks : public testing::Test, public LoopClient {
 protected:
  static constexpr int kTimes = 200;

  DialogLeaks() {
    main_.Form_Load();
    events_.show(main_);
    // What lies under the dialogs is drawn anew each time.
    main_.ShowSite(true);
    loop_.add(*this);
  }
  ~DialogLeaks() override {
    loop_.remove(*this);
    events_.close_all();
  }

  void show(Form& dialog, Button& leave_by) {
    dialog_ = &dialog;
    button_ = &leave_by;
    events_.show_modal(dialog, main_);
  }
  template <class Show>
  void expect_nothing_left(Show show) {
    for (int i = 0; i < 5; ++i) show();
    const Held before;
    for (int i = 0; i < kTimes; ++i) show();
    loop_.pump();
    const Held after;
    EXPECT_LT(after.drawing - before.drawing, kTimes / 2);
    EXPECT_LT(after.window - before.window, kTimes / 2);
    EXPECT_LT(after.kernel - before.kernel, kTimes / 2);
    EXPECT_LT(after.memory - before.memory, kTimes / 2);
  }

  bool translate(MSG& message) override {
    EXPECT_FALSE(message.message == WM_TIMER && message.hwnd == nullptr) << "a timer of no window";
    return false;
  }
  void show_changes() override {}
  void settle(bool idle) override {
    if (!idle || button_ == nullptr) return;
    EXPECT_TRUE(IsWindowVisible(window_of(*dialog_)));
    std::exchange(button_, nullptr)->take_user_click();
  }

  FakeMachine machine_;
  MessageLoop loop_;
  Win32Events events_{loop_};
  App app_{{machine_.files, machine_.clock, events_, machine_.dialogs, machine_.system,
            machine_.host_link, machine_.automation}};
  fMain main_{app_};
  const Form* dialog_ = nullptr;
  Button* button_ = nullptr;
};

TEST_F(DialogLeaks, EditingAnEntry) {
  expect_nothing_left([&] {
    fImportItemEdit dialog(app_);
    dialog.SettVars(-1);
    show(dialog, dialog.cmdEdit(1));
  });
}

TEST_F(DialogLeaks, AskingAboutANumberThatExists) {
  expect_nothing_left([&] {
    fImportMsg dialog(app_);
    dialog.fill("030", "Alt", "Neu");
    show(dialog, dialog.cmdMsg(0));
  });
}

TEST_F(DialogLeaks, AskingForTheOwnCodes) {
  app_.settings.own_area_code = "30";
  expect_nothing_left([&] {
    fOVWInput dialog(app_);
    show(dialog, dialog.cmdOK);
  });
}

}  // namespace
}  // namespace quenda

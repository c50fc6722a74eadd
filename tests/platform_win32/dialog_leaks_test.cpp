// A user edits hundreds of entries in one sitting: each dialog has to give back whatever it took.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <ostream>
#include <vector>

#include "app/app.h"
#include "app/fImportItemEdit.h"
#include "app/fImportMsg.h"
#include "app/fMain.h"
#include "app/fOVWInput.h"
#include "platform/win32/events_win32.h"
#include "platform/win32/handles.h"
#include "tests/shared/fakes.h"

namespace quenda {
namespace {

/// Not every system tells how many objects a process has. All give out numbers that are free again
/// before new ones, so the highest of many that are taken at once tells how many others there are.
template <class Object>
long highest_of_many(Object (*make)()) {
  std::array<Object, 256> taken;
  long highest = 0;
  for (Object& object : taken) {
    object = make();
    highest = std::max(highest, static_cast<long>(as_lparam(object.get()) & 0xFFFF));
  }
  return highest;
}

using Menu = Handle<HMENU, &DestroyMenu>;

/// What the process holds of the system.
struct Held {
  long kernel = highest_of_many<KernelHandle>(
                    [] { return KernelHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr)); }) /
                4;
  long drawing = highest_of_many<Brush>([] { return Brush(CreateSolidBrush(RGB(1, 2, 3))); });
  long window = highest_of_many<Menu>([] { return Menu(CreateMenu()); }) / 2;
  /// Pieces of memory, the objects of components and the tool's own among them.
  long memory = pieces_of_memory();

  static long pieces_of_memory() {
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
};

/// The user: presses a button of the dialog as soon as all input has been handled.
class Presser : public LoopClient {
 public:
  explicit Presser(MessageLoop& loop) : loop_(loop) { loop_.add(*this); }
  ~Presser() override { loop_.remove(*this); }
  Presser(const Presser&) = delete;
  Presser& operator=(const Presser&) = delete;

  const Button* button = nullptr;

  bool translate(MSG& /*message*/) override { return false; }
  void show_changes() override {}
  void settle(bool idle) override {
    if (!idle || button == nullptr || button->peer() == nullptr) return;
    const HWND window = static_cast<NativeControl*>(button->peer())->window();
    PostMessageW(std::exchange(button, nullptr) == nullptr ? nullptr : window, BM_CLICK, 0, 0);
  }

 private:
  MessageLoop& loop_;
};

TEST(X, Y) {
  FakeMachine machine;
  machine.files.put("C:\\Quenda\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
  machine.files.put("C:\\Quenda\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
  machine.system.protects = false;
  MessageLoop loop;
  Win32Events events{loop};
  App app(Services{machine.files, machine.clock, events, machine.dialogs, machine.system,
                   machine.host_link, machine.automation});
  fMain main(app);
  main.Form_Load();
  events.show(main);
  Presser user(loop);
  const std::function<void()> dialogs[] = {
      [&] {
        fImportItemEdit dialog(app, main);
        dialog.SettVars(-1);
        user.button = &dialog.cmdEdit(1);
        events.show_modal(dialog, main);
      },
      [&] {
        fImportMsg dialog(app, main);
        user.button = &dialog.cmdMsg(0);
        events.show_modal(dialog, main);
      },
      [&] {
        fOVWInput dialog(app, main);
        user.button = &dialog.cmdOK;
        events.show_modal(dialog, main);
      },
  };
  for (const auto& dialog : dialogs) {
    for (int i = 0; i < 3; ++i) dialog();
    for (int j = 0; j < 2; ++j) {
      const auto t = GetTickCount64();
      const Held before;
      const auto t2 = GetTickCount64();
      for (int i = 0; i < 200; ++i) dialog();
      const Held after;
      std::cout << before.kernel << " " << after.kernel << "\n"
                << before.drawing << " " << after.drawing << "\n"
                << before.window << " " << after.window << "\n"
                << before.memory << " " << after.memory << "  ms " << GetTickCount64() - t2 << " "
                << t2 - t << " " << GetGuiResources(GetCurrentProcess(), 0) << "\n";
    }
  }
  events.close_all();
}

}  // namespace
}  // namespace quenda

// What somebody hears who does not see the window.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/win32/com/com_support.h"
#include "platform/win32/com/com_values.h"
#include "tests/platform/win32/form_fixture.h"
// The component system's declarations come first.
#include <oleacc.h>

namespace quenda {
namespace {

ComPtr<IAccessible> object_of(HWND window) {
  ComPtr<IAccessible> object;
  AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                             object.out_void());
  return object;
}

std::string read_aloud(HWND window) {
  const ComPtr<IAccessible> object = object_of(window);
  Bstr name;
  if (object) object->get_accName(*Variant(long{CHILDID_SELF}).get(), name.out());
  return name.text();
}

TEST_F(FormWindowTest, BoxesAndListsTellAScreenReaderWhatTheyAre) {
  form_.label.set_caption("Vorschau");
  form_.label.set_tab_index(100);
  form_.view.set_tab_index(101);
  form_.box.set_caption("1");
  form_.box.set_spoken_name("Adresse 1");
  show();
  const ApartmentScope apartment;
  EXPECT_EQ(read_aloud(window(form_.box)), "Adresse 1");
  EXPECT_EQ(read_aloud(window(form_.view)), "Vorschau");
}

TEST_F(FormWindowTest, AListTellsAScreenReaderWhichRowOfHowManyIsChosen) {
  form_.set_row_pattern("Zeile %1 von %2");
  form_.label.set_caption("Vorschau");
  form_.label.set_tab_index(100);
  form_.view.set_tab_index(101);
  form_.view.set_source(&rows_);
  form_.view.select(2);
  show();
  const ApartmentScope apartment;
  const auto description = [&](long child) {
    const ComPtr<IAccessible> object = object_of(window(form_.view));
    Bstr text;
    if (object) object->get_accDescription(*Variant(child).get(), text.out());
    return text.text();
  };
  EXPECT_EQ(description(CHILDID_SELF), "Zeile 3 von 1000000");
  EXPECT_EQ(description(7), "Zeile 7 von 1000000");
}

/// What is announced while it lives: the window, and the part of it.
class Announcements {
 public:
  Announcements() {
    heard().clear();
    hook_ = SetWinEventHook(kLiveRegionChanged, kLiveRegionChanged, nullptr, &hear,
                            GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
  }
  Announcements(const Announcements&) = delete;
  Announcements& operator=(const Announcements&) = delete;
  ~Announcements() { UnhookWinEvent(hook_); }

  using Heard = std::vector<std::pair<HWND, LONG>>;
  [[nodiscard]] static Heard& heard() {
    static Heard all;
    return all;
  }

 private:
  static constexpr DWORD kLiveRegionChanged = 0x8019;
  static void CALLBACK hear(HWINEVENTHOOK, DWORD, HWND window, LONG, LONG child, DWORD,
                            DWORD) noexcept {
    heard().emplace_back(window, child);
  }

  HWINEVENTHOOK hook_;
};

TEST_F(FormWindowTest, WhatHappensIsAnnouncedToAScreenReader) {
  form_.label.set_announced();
  form_.label.set_visible(false);
  form_.label.set_caption("nichts");
  show();
  const Announcements announcements;
  form_.status.set_panel(2, "7 Eintr\xE4ge gelesen");
  loop_.pump();
  form_.label.set_caption("Nummer fehlt");
  form_.label.set_visible(true);
  loop_.pump();
  form_.label.set_caption("Nummer fehlt");
  loop_.pump();
  form_.label.set_caption("Name fehlt");
  const Announcements::Heard expected{
      {window(form_.status), 2}, {window(form_.label), 0}, {window(form_.label), 0}};
  for (int i = 0; i < 20 && Announcements::heard().size() < expected.size(); ++i) {
    loop_.pump();
    Sleep(10);
  }
  EXPECT_EQ(Announcements::heard(), expected);
}

}  // namespace
}  // namespace quenda

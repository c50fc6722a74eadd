// What the phone book hears, and what becomes of the import when the phone book goes or hangs.
#include <gmock/gmock.h>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "text/text.h"
#include "tools/driver/wizard_test.h"
// dde.h needs windows.h first.
#include <dde.h>

namespace quenda {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

class Host : public WizardTest {
 protected:
  Host() { suite_.remember_columns(); }
  void write_unheard() {
    click_button(kApply);
    confirm(dialog_over(main_));
    expect_end();
    EXPECT_THAT(suite_.book(), HasSubstr("Berg Anna;03023125701"));
  }
};

class CancelledOn : public WizardTest, public testing::WithParamInterface<Page> {};

TEST_P(CancelledOn, HostHearsItAndTheBookStays) {
  suite_.remember_columns();
  const std::string book = suite_.book();
  start_by_phone_book();
  go_to(GetParam());
  if (GetParam() == Page::kNames) {
    press_alt_f4();
  } else if (GetParam() == Page::kAddresses) {
    press(Key::kEscape);
  } else {
    click_button(kCancel);
  }
  expect_end();
  EXPECT_TRUE(phone_book_->hears("exit 0"));
  EXPECT_THAT(phone_book_->heard(), ElementsAre("ON", "cancel", "closed", "exit 0"));
  EXPECT_EQ(suite_.book(), book);
}

constexpr const char* kPageNames[] = {"Source", "Columns", "Names", "Addresses", "Entries"};

INSTANTIATE_TEST_SUITE_P(Page, CancelledOn,
                         testing::Values(Page::kSource, Page::kColumns, Page::kNames,
                                         Page::kAddresses, Page::kEntries),
                         [](const auto& page) {
                           return kPageNames[static_cast<std::size_t>(page.param)];
                         });

TEST_F(Host, ImportGoesOnWhenTheHostDies) {
  start_by_phone_book();
  go_to(Page::kColumns);
  phone_book_->process().kill();
  EXPECT_TRUE(
      becomes([&] { return panel_of(main_, 3) == "Telefonbuch DDE-Verbindung: abgebrochen"; }));
  forward(Page::kNames);
  forward(Page::kAddresses);
  forward(Page::kEntries);
  write_unheard();
}

TEST_F(Host, TwoHostsHearTheSame) {
  start_by_phone_book();
  PhoneBook second(suite_.tool(), "--no-start");
  EXPECT_TRUE(second.hears("ON"));
  go_to(Page::kEntries);
  click_button(kApply);
  expect_end();
  EXPECT_TRUE(phone_book_->hears("data"));
  EXPECT_TRUE(second.hears("closed"));
  EXPECT_THAT(second.heard(), ElementsAre("ON", "data", "closed"));
}

/// Calls every window once, as the system's library does; how many have answered.
int answers_to_a_call() {
  static int answers;
  answers = 0;
  const WindowHandle caller(
      CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
  const WNDPROC count = [](HWND window, UINT message, WPARAM wparam, LPARAM lparam) -> LRESULT {
    if (message == WM_DDE_ACK) ++answers;
    return DefWindowProcW(window, message, wparam, lparam);
  };
  SetWindowLongPtrW(caller.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(count));
  SendMessageTimeoutW(HWND_BROADCAST, WM_DDE_INITIATE, reinterpret_cast<WPARAM>(caller.get()),
                      MAKELPARAM(GlobalAddAtomW(L"Import"), GlobalAddAtomW(L"book")),
                      SMTO_ABORTIFHUNG, 5000, nullptr);
  return answers;
}

TEST_F(Host, WhoeverSeesTheWindowIsAnsweredOnceByThen) {
  for (int round = 0; round < 5; ++round) {
    tool_ = Process(concat("\"", suite_.tool(), "\" /i"));
    HWND window = nullptr;
    while (tool_.running() && IsWindowVisible(window) == 0) {
      window = FindWindowW(nullptr, wide(kMainTitle).c_str());
    }
    EXPECT_EQ(answers_to_a_call(), 1);
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(tool_.exit_code(), DWORD{0});
  }
}

TEST_F(Host, AHostThatDiesOnTheFirstWordIsNoLoss) {
  phone_book_ = std::make_unique<PhoneBook>(suite_.tool(), "--die-after ON");
  find_window();
  EXPECT_EQ(phone_book_->process().exit_code(), DWORD{9});
  go_to(Page::kEntries);
  write_unheard();
}

TEST_F(Host, AHostThatHangsDoesNotHoldTheImportUp) {
  phone_book_ = std::make_unique<PhoneBook>(suite_.tool(), "--hang --seconds 60");
  find_window();
  EXPECT_TRUE(becomes([&] { return panel_of(main_, 3) == "Telefonbuch DDE-Verbindung: aktiv"; }));
  go_to(Page::kEntries);
  const ULONGLONG begin = GetTickCount64();
  click_button(kApply);
  expect_end();
  EXPECT_LT(GetTickCount64() - begin, 5000U);
  EXPECT_THAT(suite_.book(), HasSubstr("Berg Anna;03023125701"));
}

}  // namespace
}  // namespace quenda

// A hand that presses twice: nothing is answered, deleted or written that was not seen.
#include <gmock/gmock.h>

#include <utility>

#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

/// With the double-click time that users have.
class DoublePress : public WizardTest {
 protected:
  DoublePress() {
    set_double_click_time(500);
    suite_.remember_columns();
  }
  ~DoublePress() override { set_double_click_time(before_); }

  /// Nothing comes of the second press, however long one waits.
  void expect_to_stay_on(Page page) {
    expect_page(page);
    Sleep(600);
    EXPECT_TRUE(on(page));
    EXPECT_TRUE(tool_.running());
  }

  UINT before_ = GetDoubleClickTime();
};

TEST_F(DoublePress, OnNextTurnsOnePageAndWritesNothing) {
  const std::string book = suite_.book();
  start_alone();
  type_path();
  // Milliseconds between the clicks, up to the system's own limit.
  for (const auto& [page, pause] :
       {std::pair{Page::kColumns, 30U}, std::pair{Page::kNames, 120U},
        std::pair{Page::kAddresses, 250U}, std::pair{Page::kEntries, 60U}}) {
    click_twice(button(kNext), pause);
    expect_to_stay_on(page);
  }
  EXPECT_EQ(suite_.book(), book);
  click_twice(button(kBack), 450);
  expect_to_stay_on(Page::kAddresses);
  click_twice(button(kNext), 450);
  expect_to_stay_on(Page::kEntries);
}

TEST_F(DoublePress, AHeldEnterKeyTurnsOnePage) {
  start_alone();
  go_to(Page::kColumns);
  wait_until_active(main_);
  hold(Key::kEnter, 20);
  expect_to_stay_on(Page::kNames);
}

TEST_F(DoublePress, OnAnAnswerAnswersOneQuestion) {
  suite_.set_book(
      "Bergs;03023125701;2;0;5;0;Alt;;[vcd()vcd]\r\n"
      "Mobil;01713920056;0;0;1;0;;;[vcd()vcd]\r\n");
  start_alone();
  go_to(Page::kEntries);
  click_button(kApply);
  const Window first = dialog_over(main_);
  wait_until_active(first);
  click_twice(first.find("Erhalten"), 200);
  ASSERT_TRUE(becomes([&] { return !first.exists(); }));
  const Window second = dialog_over(main_);
  Sleep(600);
  EXPECT_TRUE(second.shows("2 von 2"));
  click(second.find("Erhalten"));
  ASSERT_TRUE(becomes([&] { return !second.exists(); }));
}

TEST_F(DoublePress, OnSaveLeavesWhatLiesUnderTheDialogAlone) {
  start_alone();
  go_to(Page::kEntries);
  const auto entries = row_count(final_list());
  click_button("Bearbeiten");
  const Window dialog = dialog_over(main_);
  SetWindowPos(dialog.handle(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  const Window save = dialog.find("Speichern");
  const RECT over = save.place();
  const RECT under = button("Entfernen").place();
  SetWindowPos(dialog.handle(), nullptr, under.left - over.left, under.top - over.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER);
  click_twice(save, 100);
  ASSERT_TRUE(becomes([&] { return !dialog.exists(); }));
  Sleep(600);
  EXPECT_EQ(row_count(final_list()), entries);
}

}  // namespace
}  // namespace quenda

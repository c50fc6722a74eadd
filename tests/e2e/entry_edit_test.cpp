// The list of entries before it goes into the book.
#include <gmock/gmock.h>

#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::ElementsAre;

constexpr std::string_view kEdit = "Bearbeiten";
constexpr std::string_view kRemove = "Entfernen";
constexpr std::string_view kSave = "Speichern";

class EntryEdit : public WizardTest {
 protected:
  EntryEdit() { suite_.remember_columns(); }

  void go_to_list() {
    start_by_phone_book();
    go_to(Page::kEntries);
    select_row(final_list(), 1);
  }
  [[nodiscard]] TableRow row(std::size_t number) const { return rows_of(final_list())[number]; }
  /// Waits for the dialog to go.
  void gone(const Window& dialog) {
    EXPECT_TRUE(becomes([&] { return !dialog.exists() && main_.enabled(); }));
    wait_until_active(main_);
  }
};

TEST_F(EntryEdit, OpensByMouseKeyAndButton) {
  go_to_list();
  double_click_at(final_list(), point_in_row(final_list(), 1));
  Window dialog = dialog_over(main_);
  EXPECT_EQ(dialog.after("Name").text(), "Berg Anna (mobil)");
  EXPECT_EQ(dialog.after("Nummer").text(), "01713920056");
  fill(dialog.after("Name"), "Dr. Anna Berg");
  fill(dialog.after("Adresse"), "Berlin");
  click(dialog.find(kSave));
  gone(dialog);
  EXPECT_THAT(row(1), ElementsAre("Dr. Anna Berg", "01713920056", "Berlin", testing::_));
  EXPECT_EQ(selected_row(final_list()), 1);

  press(Key::kEnter);
  dialog = dialog_over(main_);
  fill(dialog.after("Name"), "Niemand");
  press(Key::kEscape);
  gone(dialog);
  EXPECT_EQ(row(1)[0], "Dr. Anna Berg");
  click_button(kEdit);
  dialog = dialog_over(main_);
  fill(dialog.after("Name"), "Jemand");
  press(Key::kEnter);
  gone(dialog);
  EXPECT_EQ(row(1)[0], "Jemand");
}

TEST_F(EntryEdit, RowsGoByKeyAndButtonAndTheLastOneTakesTheImportWithIt) {
  go_to_list();
  press(Key::kDelete);
  ASSERT_TRUE(becomes([&] { return row_count(final_list()) == 3; }));
  EXPECT_EQ(selected_row(final_list()), 1) << "the next row has moved up";
  for (int left = 2; left >= 0; --left) {
    click_button(kRemove);
    ASSERT_TRUE(becomes([&] { return row_count(final_list()) == left; })) << left;
  }
  for (const std::string_view caption : {kRemove, kApply, kEdit}) {
    EXPECT_TRUE(becomes([&] { return !button(caption).enabled(); })) << caption;
  }
}

class AreaCode : public WizardTest {};

TEST_F(AreaCode, IsAskedForUntilItIsComplete) {
  suite_.remember_columns();
  suite_.write("data\\Quenda.ini", "[General]\r\nmyVWL=49\r\n");
  start_by_phone_book();
  go_to(Page::kAddresses);
  click_button(kNext);
  Window dialog = dialog_over(main_);
  EXPECT_TRUE(dialog.shows("In den Einstellungen von Quenda ist keine Ortsvorwahl eingetragen."));
  const Window area = dialog.after("Ortsvorwahl");
  EXPECT_TRUE(becomes([&] { return area.focused(); })) << focus_of(dialog).text();
  fill(area, "030");
  EXPECT_TRUE(becomes([&] { return dialog.find(kApply).enabled(); }));
  fill(area, "30");
  EXPECT_TRUE(becomes([&] { return !dialog.find(kApply).enabled(); }));
  press_alt_f4();
  ASSERT_TRUE(becomes([&] { return !area.exists(); }));
  dialog = dialog_over(main_);
  EXPECT_EQ(dialog.after("Ortsvorwahl").text(), "30") << "closing is no way around it";
  fill(dialog.after("Ortsvorwahl"), "0341");
  press(Key::kEnter);
  expect_page(Page::kEntries);
  EXPECT_EQ(main_.after("Ortsvorwahl").text(), "0341");
  EXPECT_EQ(row_count(final_list()), 4);
}

}  // namespace
}  // namespace quenda

// The tool in English.
#include <gmock/gmock.h>

#include "tests/e2e/wizard_test.h"

namespace quenda {
namespace {

using testing::HasSubstr;

class English : public WizardTest {};

TEST_F(English, PagesDialogsAndMessagesSpeakIt) {
  suite_.remember_columns();
  suite_.speak("en");
  start_alone();
  fill(main_.after("File to import"), suite_.contacts());
  const char* const labels[] = {"Name columns", "Name in the phone book", "Order",
                                "Entries for the phone book"};
  for (const char* label : labels) {
    click_button("Next");
    EXPECT_TRUE(becomes([&] { return main_.shows(label); })) << label;
  }
  EXPECT_TRUE(becomes([&] { return panel_of(main_, 3) == "4 valid entries"; }));
  EXPECT_TRUE(main_.find("keep the existing entry"));
  EXPECT_FALSE(main_.find(kNext)) << "German";
  ASSERT_TRUE(becomes([&] { return main_.find("Apply") && button("Edit").enabled(); }));
  select_row(final_list(), 0);
  click_button("Edit");
  const Window dialog = dialog_over(main_);
  EXPECT_TRUE(dialog.find("Save"));
  EXPECT_EQ(dialog.after("Number").text(), "03023125701");
  press(Key::kEscape);
  EXPECT_TRUE(becomes([&] { return main_.enabled(); }));
  click_button("Apply");
  const Window box = dialog_over(main_);
  EXPECT_THAT(message_of(box), HasSubstr("There is no DDE link to Quenda!"));
  confirm(box);
  expect_end();
}

}  // namespace
}  // namespace quenda

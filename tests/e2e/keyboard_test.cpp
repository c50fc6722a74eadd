// The window without a mouse.
#include <gmock/gmock.h>

#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::ElementsAre;

class Keyboard : public WizardTest {
 protected:
  /// Presses the Alt letter of a control.
  void alt(const Window& control) {
    const char letter = control.alt_letter();
    ASSERT_NE(letter, 0) << control.text() << " has no Alt letter";
    press_with(VK_MENU, LOBYTE(VkKeyScanA(letter)));
  }

  [[nodiscard]] Window label(std::string_view text) const {
    for (const Window& control : main_.controls()) {
      if (control.is(WC_STATICW) && control.text() == text) return control;
    }
    return {};
  }

  /// By the label's Alt letter to the list, down to an entry, and the space bar.
  void choose_by_keys(std::string_view list_label, int entry) {
    alt(label(list_label));
    const Window list = main_.after(list_label);
    ASSERT_TRUE(becomes([&] { return list.focused(); })) << list_label;
    press(Key::kHome);
    for (int i = 0; i < entry; ++i) press(Key::kDown);
    press(Key::kBlank);
    const std::string wanted = entries_of(list).at(static_cast<std::size_t>(entry));
    EXPECT_TRUE(becomes([&] { return selected_in(list) == std::vector{wanted}; })) << wanted;
  }

  void tab_to(const Window& control) {
    for (int i = 0; i < 20 && !control.focused(); ++i) {
      const Window before = focus_of(main_);
      press(Key::kTab);
      ASSERT_TRUE(becomes([&] { return !before.focused(); }));
    }
    EXPECT_TRUE(control.focused()) << control.text();
  }

  void enter_to(Page page) {
    ASSERT_TRUE(becomes([&] { return button(kNext) && button(kNext).enabled(); }));
    press(Key::kEnter);
    expect_page(page);
  }
};

TEST_F(Keyboard, WholeImportWithoutAMouse) {
  start_by_phone_book();
  EXPECT_TRUE(becomes([&] { return main_.after(u8"Datei für den Import"_de).focused(); }));
  alt(button(kChooseFile));
  choose_file(dialog_over(main_), suite_.contacts());
  ASSERT_TRUE(becomes([&] { return button(kNext).enabled(); }));
  press(Key::kEnter);
  expect_page(Page::kColumns);
  EXPECT_TRUE(becomes([&] { return main_.after("Spalten Name").focused(); }));
  choose_by_keys("Spalten Name", 0);
  choose_by_keys("Spalten Rufnummer", 3);
  choose_by_keys("Spalten Adresse 1", 5);
  alt(label("Vorschau der Daten (3)"));
  EXPECT_TRUE(becomes([&] { return main_.after("Vorschau der Daten (3)").focused(); }));
  enter_to(Page::kNames);
  enter_to(Page::kAddresses);
  const Window first = main_.find("Mobil").find("1");
  tab_to(first);
  press(Key::kBlank);
  EXPECT_TRUE(becomes([&] { return first.checked(); }));
  enter_to(Page::kEntries);
  ASSERT_EQ(row_count(final_list()), 1);
  tab_to(button(kApply));
  press(Key::kBlank);
  expect_end();
  EXPECT_TRUE(phone_book_->hears("data"));
}

TEST_F(Keyboard, TabGoesThroughThePageAndThenToTheButtons) {
  suite_.remember_columns();
  start_alone();
  go_to(Page::kEntries);
  wait_until_active(main_);
  ASSERT_TRUE(becomes([&] { return final_list().focused(); })) << "the first field of the page";
  std::vector<std::string> walked;
  for (int i = 0; i < 12; ++i) {
    const Window before = focus_of(main_);
    press(Key::kTab);
    ASSERT_TRUE(becomes([&] { return !before.focused(); }));
    const Window now = focus_of(main_);
    walked.push_back(now.is(WC_EDITW) ? "field " + now.text() : now.text());
  }
  EXPECT_THAT(walked, ElementsAre("Bearbeiten", "Entfernen", "nachfragen", "field 0049",
                                  "field 030", "Telefonbuch vorher sichern", "Bericht ...", kBack,
                                  kApply, kCancel, "Hilfe", ""));
  EXPECT_TRUE(final_list().focused()) << "and round again";
}

}  // namespace
}  // namespace quenda

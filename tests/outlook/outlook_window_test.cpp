// The window and Outlook: what a user sees and does, and what the phone book hears.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "tools/driver/wizard_test.h"
#include "tools/outlook/outlook_standin.h"

namespace quenda {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr std::string_view kOutlook = "Outlook-Kontakte";
constexpr std::string_view kThreeItems =
    "version=15.0.0.4420\n"
    "contact=FirstName=J\xC3\xB6rg|LastName=Berg|HomeTelephoneNumber=+49 30 5551234"
    "|HomeAddressPostalCode=12345|HomeAddressCity=Berlin|HomeAddressStreet=Weg 1\\nHof 2\n"
    "list=\n"
    "contact=FirstName=Udo|LastName=Muster|BusinessTelephoneNumber=040 5556677"
    "|MobileTelephoneNumber=0171 5550000\n";

class OutlookWindow : public WizardTest {
 protected:
  void SetUp() override {
    if (!may_register_programs()) GTEST_SKIP() << "the Outlook of this machine stays as it is";
    suite_.set_book("");
  }

  [[nodiscard]] testing::AssertionResult panel_becomes(int panel, std::string_view text) const {
    if (becomes([&] { return panel_of(main_, panel) == text; })) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << panel_of(main_, 1) << " | " << panel_of(main_, 2) << " | " << panel_of(main_, 3);
  }
  [[nodiscard]] bool on_outlook_page() const {
    return main_.shows(kOutlook) && button("Mobilfunknummer");
  }
  /// Presses the Outlook button as soon as Outlook has been found.
  void open_outlook() {
    ASSERT_TRUE(becomes([&] { return button(kOutlook) && button(kOutlook).enabled(); }));
    click(button(kOutlook));
    EXPECT_TRUE(panel_becomes(1, "Importmode: Outlook"));
  }
  [[nodiscard]] Window preview() const { return main_.first(WC_LISTVIEWW); }
};

TEST_F(OutlookWindow, ContactsReachTheBookAndThePhoneBookHearsIt) {
  const OutlookStandIn outlook(kThreeItems);
  start_by_phone_book();
  EXPECT_TRUE(panel_becomes(2, "3 Kontakte gefunden"));
  EXPECT_TRUE(main_.shows(u8"Outlook®2013  v15"_de));
  open_outlook();
  EXPECT_TRUE(panel_becomes(3, u8"3 Einträge zum Import"_de));
  EXPECT_THAT(
      rows_of(preview()),
      ElementsAre(ElementsAre("J\xF6rg Berg privat", "+49 30 5551234", "12345 Berlin, Weg 1 Hof 2"),
                  ElementsAre(u8"Udo Muster geschäftlich"_de, "040 5556677", ","),
                  ElementsAre("Udo Muster mobil", "0171 5550000", "")));
  click(button("Mobilfunknummer"));
  EXPECT_TRUE(becomes([&] { return row_count(preview()) == 2; }));
  forward(Page::kEntries);
  EXPECT_THAT(final_entries(), ElementsAre("J\xF6rg Berg privat 0305551234",
                                           u8"Udo Muster geschäftlich 0405556677"_de));
  click_button(kApply);
  expect_end();
  EXPECT_TRUE(phone_book_->hears("data"));
  EXPECT_EQ(suite_.book(),
            u8"Jörg Berg privat;0305551234;0;0;0;0;12345 Berlin, Weg 1 Hof 2;;[vcd()vcd]\r\n"
            u8"Udo Muster geschäftlich;0405556677;0;0;0;0;,;;[vcd()vcd]\r\n"_de);
  EXPECT_THAT(outlook.counted("live"), Each(0));
}

TEST_F(OutlookWindow, TwiceBackLeadsToTheChoiceOfSource) {
  const OutlookStandIn outlook(kThreeItems);
  start_alone();
  open_outlook();
  forward(Page::kEntries);
  click_button(kBack);
  EXPECT_TRUE(becomes([&] { return on_outlook_page() && button(kNext).enabled(); }));
  EXPECT_EQ(row_count(preview()), 3);
  click_button(kBack);
  expect_page(Page::kSource);
  EXPECT_FALSE(button(kNext).enabled());
  open_outlook();
  EXPECT_TRUE(panel_becomes(3, u8"3 Einträge zum Import"_de));
}

TEST_F(OutlookWindow, CancelWhileReadingEndsTheToolAndLetsOutlookGo) {
  const OutlookStandIn outlook("contacts=500\n");
  start_by_phone_book();
  open_outlook();
  EXPECT_TRUE(panel_becomes(2, u8"Einträge aufbereiten"_de));
  EXPECT_FALSE(button(kNext).enabled());
  click(button(kCancel));
  expect_end();
  EXPECT_TRUE(phone_book_->hears("cancel"));
  EXPECT_EQ(suite_.book(), "");
  EXPECT_THAT(outlook.counted("live"), Each(0));
}

TEST_F(OutlookWindow, CancelIsAnsweredWhileOutlookHangs) {
  const OutlookStandIn outlook("contacts=3\nhangs_at=2\n");
  start_by_phone_book();
  open_outlook();
  EXPECT_TRUE(panel_becomes(2, u8"Einträge aufbereiten"_de));
  Sleep(200);  // the second contact is asked for
  click(button(kCancel));
  const ULONGLONG begin = GetTickCount64();
  EXPECT_TRUE(becomes([&] { return !main_.visible(); }));
  // Within a second on a machine that has nothing else to do; the call comes back after eight.
  EXPECT_LT(GetTickCount64() - begin, 2500U);
  RecordProperty("milliseconds", static_cast<int>(GetTickCount64() - begin));
  expect_end();
  EXPECT_TRUE(phone_book_->hears("cancel"));
}

TEST_F(OutlookWindow, AFileIsImportedWhileASlowOutlookStarts) {
  const OutlookStandIn outlook("starts_after=6000\n");
  const ULONGLONG begin = GetTickCount64();
  start_by_phone_book();
  go_to(Page::kColumns);
  EXPECT_LT(GetTickCount64() - begin, 6000U);
  click_button(kCancel);
  expect_end();
  EXPECT_TRUE(phone_book_->hears("cancel"));
}

}  // namespace
}  // namespace quenda

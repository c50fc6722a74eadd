// A phone book that cannot be written, and settings that stay for the next time.
#include <gmock/gmock.h>

#include "platform/win32/text_win32.h"
#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr std::string_view kUndo = u8"Letzten Import zurücknehmen"_de;

class Book : public WizardTest {
 protected:
  Book() : path_(wide(suite_.path("data\\Quendabook.txt"))) { suite_.remember_columns(); }

  /// Tries to write, is told about it, and finds the entries where they were.
  void expect_refusal() {
    const std::string before = suite_.book();
    click_button(kApply);
    const Window box = dialog_over(main_);
    EXPECT_THAT(message_of(box), HasSubstr("Es ist ein Fehler aufgetreten!"));
    confirm(box);
    EXPECT_TRUE(becomes([&] { return main_.enabled(); }));
    wait_until_active(main_);
    EXPECT_EQ(suite_.book(), before);
    EXPECT_THAT(phone_book_->heard(), Not(Contains("data")));
    EXPECT_EQ(row_count(final_list()), 4);
  }

  /// Back and forth, and the same entries are written after all.
  void expect_success() {
    click_button(kBack);
    click_button(kApply);
    expect_end();
    EXPECT_TRUE(phone_book_->hears("data"));
    EXPECT_THAT(suite_.book(), HasSubstr("Berg Anna;03023125701"));
  }

  std::wstring path_;
};

TEST_F(Book, LockedBookIsReportedAndNothingIsLost) {
  start_by_phone_book();
  go_to(Page::kEntries);
  {
    const FileHandle lock(CreateFileW(path_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr));
    expect_refusal();
  }
  expect_success();
}

TEST_F(Book, TheNextStartRemembersPlaceAndColumns) {
  start_alone();
  go_to(Page::kEntries);
  SetWindowPos(main_.handle(), nullptr, 150, 90, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  const RECT place = main_.place();
  click_button(kApply);
  const Window box = dialog_over(main_);
  EXPECT_THAT(message_of(box), HasSubstr("Es besteht keine DDE-Verbindung zu Quenda!"));
  confirm(box);
  expect_end();

  start_alone();
  EXPECT_EQ(main_.place().left, place.left);
  EXPECT_EQ(main_.place().top, place.top);
  type_path();
  forward(Page::kColumns);
  EXPECT_THAT(selected_in(main_.after("Spalten Name")), ElementsAre("Nachname", "Vorname"));
  EXPECT_THAT(selected_in(main_.after("Spalten Adresse 2")), IsEmpty());
}

TEST_F(Book, AnImportThatCopiedTheBookIsTakenBack) {
  const std::string before = suite_.book();
  start_by_phone_book();
  EXPECT_FALSE(button(kUndo));
  go_to(Page::kEntries);
  click_button("Telefonbuch vorher sichern");
  click_button(kApply);
  expect_end();
  ASSERT_NE(suite_.book(), before);

  start_by_phone_book();
  click_button(kUndo);
  const Window question = dialog_over(main_);
  EXPECT_THAT(message_of(question), HasSubstr("Soll der Import vom"));
  confirm(question);
  const Window told = dialog_over(main_);
  EXPECT_THAT(message_of(told), HasSubstr("wieder wie davor"));
  confirm(told);
  EXPECT_EQ(suite_.book(), before);
  EXPECT_TRUE(phone_book_->hears("data"));
  EXPECT_TRUE(becomes([&] { return !button(kUndo); }));
}

}  // namespace
}  // namespace quenda

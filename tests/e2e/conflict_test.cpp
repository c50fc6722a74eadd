// Numbers that are in the book already, under another name.
#include <gmock/gmock.h>

#include "text/text.h"
#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::string_view kKeep = "Erhalten";
constexpr std::string_view kTake = kApply;

/// Three of the numbers to come stand in the book under other names.
constexpr std::string_view kBook =
    "Feuerwehr;112;0;0;0;0;;;[vcd()vcd]\r\n"
    "Bergs;03023125701;2;0;5;0;Alt;;[vcd()vcd]\r\n"
    "Mobil;01713920056;0;0;1;0;;;[vcd()vcd]\r\n"
    "Cem;023125702;0;0;0;0;;;[vcd()vcd]\r\n";

class Conflict : public WizardTest {
 protected:
  Conflict() {
    suite_.remember_columns();
    suite_.set_book(kBook);
  }

  void start_writing() {
    start_by_phone_book();
    go_to(Page::kEntries);
    click_button(kApply);
  }

  /// Checks the question and answers it by one of its buttons.
  void answer(std::string_view number, std::string_view caption, bool for_all = false) {
    const Window question = dialog_over(main_);
    ASSERT_TRUE(question);
    EXPECT_TRUE(becomes(
        [&] { return question.shows(concat("Eintrag vorhanden mit der Rufnummer: ", number)); }));
    if (for_all) {
      const Window option = question.find(u8"für alle weiteren übernehmen"_de);
      click(option);
      EXPECT_TRUE(becomes([&] { return option.checked(); }));
    }
    click(question.find(caption));
    EXPECT_TRUE(becomes([&] { return !question.exists(); }));
  }
};

TEST_F(Conflict, IsDecidedByAnswersAloneForOneEntryOrAllThatFollow) {
  start_writing();
  const Window question = dialog_over(main_);
  EXPECT_TRUE(question.shows("Bergs  Alt")) << "the entry of the book";
  EXPECT_TRUE(question.shows(u8"Berg Anna  Grüner Weg 4 12099 Berlin"_de)) << "the new one";
  EXPECT_TRUE(question.shows("1 von 3"));
  press_alt_f4();
  press(Key::kEscape);
  // Keys are handled in their order: once this one has been, the two before have been too.
  press(Key::kTab);
  EXPECT_TRUE(becomes([&] { return question.find(kTake).focused(); })) << focus_of(question).text();
  EXPECT_TRUE(question.visible());
  answer("03023125701", kTake);
  answer("01713920056", kKeep, true);
  expect_end();
  EXPECT_TRUE(phone_book_->hears("data"));
  const std::string book = suite_.book();
  EXPECT_THAT(book, Not(HasSubstr("Bergs;")));
  EXPECT_THAT(book, HasSubstr("\r\nBerg Anna;03023125701;2;0;5;0;")) << "tag and count stay";
  EXPECT_THAT(book, HasSubstr("Mobil;01713920056;0;0;1;0;"));
  EXPECT_THAT(book, HasSubstr("Cem;023125702;")) << "kept without another question";
}

}  // namespace
}  // namespace quenda

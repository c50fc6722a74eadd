// Other sources than the file of the dialog, and files that are no source.
#include <gmock/gmock.h>

#include "tests/e2e/wizard_test.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Sources : public WizardTest {};

TEST_F(Sources, IspyLogGoesStraightToTheEntries) {
  suite_.write("ispy.log",
               u8"2014-03-02 17:05:09 Erika Mustermann [#0301234567] Telefon Flur\r\n"
               u8"2014-03-03 08:12:30 Autohaus Grün [#03023125818] Büro\r\n"
               u8"2014-03-03 11:27:44 Erika Mustermann [#0301234567] Telefon Flur\r\n"_de);
  start_by_phone_book();
  click_button(u8"ISpy-Log wählen ..."_de);
  choose_file(dialog_over(main_), suite_.path("ispy.log"));
  EXPECT_TRUE(becomes([&] { return panel_of(main_, 1) == "Importmode: ISpy"; }));
  forward(Page::kEntries);
  EXPECT_THAT(final_entries(),
              ElementsAre("Erika Mustermann 0301234567", u8"Autohaus Grün 03023125818"_de));
  click_button(kApply);
  expect_end();
  EXPECT_TRUE(phone_book_->hears("data"));
  EXPECT_THAT(suite_.book(), HasSubstr(u8"\r\nAutohaus Grün;03023125818;0;0;0;0;;;"_de));
}

TEST_F(Sources, AFileWithoutDelimiterIsRefused) {
  suite_.write("leer.txt", "nur ein Satz\r\nund noch einer\r\n");
  start_alone();
  fill(main_.after(u8"Datei für den Import"_de), suite_.path("leer.txt"));
  EXPECT_TRUE(becomes([&] { return main_.shows("Kein Trennzeichen erkannt!"); }));
  EXPECT_FALSE(button(kNext).enabled());
  // The user's own choice is taken without another check, and the header is found wanting then.
  const Window delimiter = main_.after("Trennzeichen");
  click(delimiter);
  press(Key::kDown);
  press(Key::kEnter);
  EXPECT_TRUE(becomes([&] { return button(kNext).enabled(); }));
  click_button(kNext);
  const Window box = dialog_over(main_);
  EXPECT_THAT(message_of(box), HasSubstr(u8"Ein Import der Daten ist nicht möglich!"_de));
  confirm(box);
  expect_page(Page::kSource);
}

}  // namespace
}  // namespace quenda

// Files that are no source.
#include <gmock/gmock.h>

#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::HasSubstr;

class Sources : public WizardTest {};

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

// A file of contacts, from the file dialog to the phone book.
#include <gmock/gmock.h>

#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class CsvImport : public WizardTest {};

TEST_F(CsvImport, FirstImportFromFileDialogToBook) {
  start_by_phone_book();
  EXPECT_EQ(panel_of(main_, 3), "Telefonbuch DDE-Verbindung: aktiv");
  const std::string before = suite_.book();
  click_button(kChooseFile);
  choose_file(dialog_over(main_), suite_.contacts());
  EXPECT_TRUE(becomes([&] { return panel_of(main_, 2) == "Trennzeichen erkannt"; }));
  EXPECT_EQ(panel_of(main_, 1), "Importmode: CSV");
  EXPECT_EQ(main_.after("Trennzeichen").text(), "Semikolon");
  forward(Page::kColumns);
  EXPECT_FALSE(button(kNext).enabled()) << "no columns are chosen yet";
  choose(main_.after("Spalten Name"), "Vorname");
  choose(main_.after("Spalten Name"), "Nachname");
  choose(main_.after("Spalten Rufnummer"), "Telefon");
  choose(main_.after("Spalten Rufnummer"), "Mobil");
  choose(main_.after("Spalten Adresse 1"), u8"Straße"_de);
  choose(main_.after("Spalten Adresse 1"), "Ort");
  forward(Page::kNames);
  EXPECT_EQ(main_.after("Name im Telefonbuch").text(), "Nachname Vorname");
  const Window suffix = main_.after("Rufnummer 2", 1);
  click(suffix);
  type("(mobil);");
  EXPECT_TRUE(becomes([&] { return suffix.text() == "(mobil),"; }))
      << "no text may hold the book's separator";
  press(Key::kBackspace);
  forward(Page::kAddresses);
  click(main_.find("Telefon").find("1"));
  forward(Page::kEntries);
  EXPECT_EQ(row_count(final_list()), 4);
  EXPECT_EQ(panel_of(main_, 3), u8"4 gültige Einträge"_de);
  EXPECT_THAT(final_entries(), ElementsAre("Berg Anna 03023125701", "Berg Anna (mobil) 01713920056",
                                           u8"Özer Cem 023125702"_de, u8"Kühn Eva 03415550144"_de));
  click_button(kApply);
  expect_end();
  EXPECT_TRUE(phone_book_->hears("exit 0"));
  EXPECT_THAT(phone_book_->heard(), ElementsAre("ON", "data", "closed", "exit 0"));
  EXPECT_EQ(
      suite_.book(),
      before +
          std::string(u8"Berg Anna;03023125701;0;0;0;0;Grüner Weg 4 12099 Berlin;;[vcd()vcd]\r\n"
                      u8"Berg Anna (mobil);01713920056;0;0;0;0;;;[vcd()vcd]\r\n"
                      u8"Özer Cem;023125702;0;0;0;0;Allee 33 10315 Berlin;;[vcd()vcd]\r\n"
                      u8"Kühn Eva;03415550144;0;0;0;0;Markt 3 04109 Leipzig;;[vcd()vcd]\r\n"_de));
  EXPECT_THAT(suite_.read("data\\sett_import.ini"), HasSubstr("SelNumbers2=Mobil"));
}

}  // namespace
}  // namespace quenda

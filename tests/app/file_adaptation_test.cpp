#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "tests/shared/wizard_fixture.h"
#include "text/literal_1252.h"
#include "text/text.h"

// What the wizard offers for files that it could not read as they are, and for known ones.
namespace quenda {
namespace {

constexpr std::string_view kUtf8 =
    "Anzeigename;Nachname;Vorname;Telefon privat;Mobiltelefon;Stra\xC3\x9F"
    "e privat;PLZ privat\n"
    ";M\xC3\xBCller;Eva;030 5550301 / 030 5550302;0171 5550303;Ring 2;10115\n";
constexpr std::string_view kPlain = "Name;Telefon\r\nMeier, Hans;030 5550304\r\n";

class FileAdaptation : public WizardTest {
 protected:
  [[nodiscard]] std::string settings() const {
    return std::string(machine.files.content(kSettingsPath));
  }
};

TEST_F(FileAdaptation, ATickAndASuggestionBringAKnownFileIn) {
  start();
  take_file(kUtf8);
  EXPECT_NE(form->labFacts.caption().find("UTF-8"), std::string::npos);
  ASSERT_TRUE(form->chkConvert.visible());
  EXPECT_FALSE(form->chkConvert.ticked()) << "nothing is adapted by itself";
  form->chkConvert.take_user_click();
  EXPECT_EQ(form->labFacts.caption(), "Die Datei wird beim Einlesen angepasst (UTF-8, LF).");

  forward();
  ASSERT_TRUE(form->cmdSuggest.visible());
  EXPECT_FALSE(form->cmdFor.enabled()) << "nothing is chosen by itself";
  form->cmdSuggest.take_user_click();
  EXPECT_FALSE(form->cmdSuggest.visible());
  forward();
  EXPECT_EQ(form->txtIndex(0).text(), "(privat)");
  EXPECT_FALSE(form->cmdSuggest.visible() || form->labTable.visible()) << "not of this page";
  forward();
  forward();
  constexpr std::string_view kName = u8"Müller Eva "_de;
  const std::string name(kName);
  EXPECT_EQ(rows(), (Texts{name + "(privat)|0305550301|Ring 2 10115",
                           name + "(privat)|0305550302|Ring 2 10115",
                           name + "(mobil)|01715550303|Ring 2 10115"}));
  finish();
  EXPECT_NE(settings().find("Convert=1\r\n"), std::string::npos);

  start();
  EXPECT_FALSE(form->chkConvert.visible());
  take_file(kPlain);
  EXPECT_TRUE(form->chkConvert.visible()) << "a remembered tick is never at work unseen";
  form->chkConvert.take_user_click();
  EXPECT_TRUE(form->chkConvert.visible()) << "it may be ticked again";
  take_file(kPlain);
  EXPECT_FALSE(form->chkConvert.visible());
}

TEST_F(FileAdaptation, ASuggestionNamesTheFileAsTheUserKnowsIt) {
  const auto caption_for = [&](std::string_view file) {
    start();
    take_file(file);
    if (!form->chkConvert.ticked()) form->chkConvert.take_user_click();
    forward();
    return form->cmdSuggest.caption();
  };
  EXPECT_EQ(caption_for("BEGIN:VCARD\nVERSION:3.0\nN:Falk;Ida\nTEL:030 5550301\nEND:VCARD\n"),
            "Vorschlag: vCard");
  EXPECT_EQ(caption_for("First Name,Last Name,Phone 1 - Label,Phone 1 - Value\n"
                        "Ida,Falk,Mobile,0171 5550303\n"),
            "Vorschlag: Google-Kontakte");
  EXPECT_EQ(caption_for(kUtf8), "Vorschlag: Kontakttabelle");
}

TEST_F(FileAdaptation, OfManyFindingsTheFirstIsToldAndTheOthersNamed) {
  start();
  take_file(concat("sep=;\n", kUtf8));
  EXPECT_EQ(form->labFacts.caption().substr(form->labFacts.caption().rfind('A')),
            "Au\xDF"
            "erdem anzupassen: LF, sep=.");
}

TEST_F(FileAdaptation, WithoutTheTickNothingIsRememberedOfIt) {
  go_to(Page::kEntries, kPlain, {{"Name"}, {"Telefon"}});
  EXPECT_FALSE(form->chkConvert.visible() || form->labFacts.visible());
  finish();
  EXPECT_EQ(settings().find("Convert"), std::string::npos);
}

TEST_F(FileAdaptation, WithTheTickAWorkbookIsNotReadAsText) {
  start();
  take_file(kUtf8);
  form->chkConvert.take_user_click();
  take_file("PK\x03\x04...xl/workbook.xml;;;;");
  EXPECT_FALSE(form->cmdFor.enabled());
  EXPECT_NE(form->labFacts.caption().find("Arbeitsmappe"), std::string::npos);
  ASSERT_TRUE(form->chkConvert.visible());
  form->chkConvert.take_user_click();
  EXPECT_TRUE(form->cmdFor.enabled()) << "as it always was";
}

TEST_F(FileAdaptation, AKnownExportWithOddFieldsCanBeAdapted) {
  constexpr std::string_view kOdd =
      "Vorname;Nachname;Firma;Telefon (privat);Mobiltelefon;Telefon Firma;Pager\r\n"
      "Ida;Falk;;030 5550301;0171 5550302;;030 5550305\r\n"
      ";;Falk KG;030 5550303 (Zentrale);;030 5550304;\r\n";
  start();
  take_file(kOdd);
  ASSERT_TRUE(form->chkConvert.visible());
  EXPECT_NE(form->labFacts.caption().find("Namen fehlen"), std::string::npos);
  form->chkConvert.take_user_click();
  EXPECT_NE(form->labFacts.caption().find("Fehlende Namen"), std::string::npos);
  forward();
  form->cmdSuggest.take_user_click();
  EXPECT_EQ(form->labTable.caption(), "1 Nummer in 1 weiteren Spalte: Pager");
  EXPECT_TRUE(form->labTable.visible());
  form->lstHeader(1).take_user_selection(3, false);
  EXPECT_EQ(form->labTable.caption(), "3 Nummern in 2 weiteren Spalten: Telefon (privat), Pager");
  form->lstHeader(1).take_user_selection(5, false);
  form->lstHeader(1).take_user_selection(3, true);
  form->lstHeader(1).take_user_selection(6, true);
  EXPECT_EQ(form->labTable.caption(), "1 Nummer in 1 weiteren Spalte: Telefon Firma");
  forward();
  forward();
  forward();
  EXPECT_EQ(rows(), (Texts{"Falk Ida (privat)|0305550301|", "Falk Ida (mobil)|01715550302|",
                           "Falk Ida|0305550305|", "Falk KG (privat)|0305550303|"}))
      << "suffixes stay with the rows";
}

TEST_F(FileAdaptation, AnEmptyColumnAtTheEndCanBeLeftOut) {
  start();
  take_file("Name;Telefon;\r\nIda Falk;030 5550301;\r\n");
  ASSERT_TRUE(form->chkConvert.visible());
  EXPECT_NE(form->labFacts.caption().find("Spalte ohne Namen"), std::string::npos);
  form->chkConvert.take_user_click();
  EXPECT_NE(form->labFacts.caption().find("weggelassen"), std::string::npos);
  forward();
  EXPECT_EQ(form->header().size(), 2U);
  EXPECT_TRUE(machine.dialogs.boxes.empty()) << "the header is complete";
}

TEST_F(FileAdaptation, EmptyCardsAreCalledSo) {
  start();
  take_file("BEGIN:VCARD\nVERSION:3.0\nEND:VCARD\nBEGIN:VCARD\nN:;;;;\nEND:VCARD\n");
  form->chkConvert.take_user_click();
  forward();
  ASSERT_EQ(machine.dialogs.boxes.size(), 1U) << "nothing about a header that the file never had";
  EXPECT_TRUE(last_box().starts_with(u8"Die Datei enthält keine Kontakte"_de)) << last_box();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kSource);
  take_file(kUtf8);
  forward();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kColumns);
}

TEST_F(FileAdaptation, SourcesTakenInTurnAreNotAskedAboutAgain) {
  constexpr std::string_view kOther =
      "Kunde;Ort;Straße;Rufnummer\r\nBäcker;Köln;Ring 3;030 5550305\r\n";
  go_to(Page::kAddresses, kOther, {{"Kunde"}, {"Rufnummer"}, {"Straße", "Ort"}});
  form->txtIndex(0).set_text("(Laden)");
  form->cmbFlipAdress.take_user_index(1);
  form->chk1(0).set_ticked(true);
  forward();
  const Texts entries = rows();
  EXPECT_EQ(entries, (Texts{"Bäcker  (Laden)|0305550305|Ring 3 Köln"}));
  finish();
  for (int turn = 0; turn < 2; ++turn) {
    start();
    take_file(kPlain);
    forward();
    EXPECT_EQ(machine.dialogs.boxes.size(), turn == 0 ? 1U : 0U) << "asked about the first time";
    machine.dialogs.boxes.clear();
    if (turn == 0) {
      select(0, {"Name"});
      select(1, {"Telefon"});
      forward();
      form->txtIndex(0).set_text("");
    } else {
      forward();
    }
    forward();
    forward();
    EXPECT_EQ(rows(), (Texts{"Meier, Hans|0305550304|"}));
    finish();

    start();
    take_file(kOther);
    forward();
    EXPECT_TRUE(machine.dialogs.boxes.empty());
    forward();
    forward();
    forward();
    EXPECT_EQ(rows(), entries);
    finish();
  }
}

}  // namespace
}  // namespace quenda

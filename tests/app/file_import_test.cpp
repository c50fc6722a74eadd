#include <gtest/gtest.h>

#include <string>

#include "book/pages/fImportMsg.h"
#include "book/pages/fOVWInput.h"
#include "tests/shared/wizard_fixture.h"
#include "text/literal_1252.h"

// The wizard from a delimited file to the phone book, through the controls that the user touches.
namespace quenda {
namespace {

constexpr std::string_view kContacts =
    "Nachname;Vorname;Telefon;Mobil;Straße;PLZ;Ort\r\n"
    "Meier;Hans;+49 (30) 123456;0171 1234567;Hauptstr. 1;12345;Berlin\r\n"
    "Huber;\"Eva; Maria\";089/7654321;;Am Ring 2;80331;München\r\n"
    "X;;0301111111;;;;\r\n";

class FileImport : public WizardTest {
 protected:
  /// Goes to a page with the usual columns.
  void go_to(Page page) {
    WizardTest::go_to(page, kContacts,
                      {{"Nachname", "Vorname"}, {"Telefon", "Mobil"}, {"Straße", "PLZ", "Ort"}});
  }
  using WizardTest::go_to;
};

TEST_F(FileImport, RunsFromTheFileToTheBook) {
  machine.files.put(kBookPath, "Alt;0309;x;True;5;0;Ort;keep;[vcd(card)vcd]\r\n");
  start();
  EXPECT_EQ(machine.host_link.texts, Texts{"ON"});
  EXPECT_FALSE(form->cmdFor.enabled());
  take_file(kContacts);
  EXPECT_EQ(form->StatusBar.panel(1), "Importmode: CSV");
  EXPECT_EQ(form->StatusBar.panel(2), "Trennzeichen erkannt");
  EXPECT_EQ(form->StatusBar.panel(3), u8"4 Einträge gelesen"_de);
  EXPECT_FALSE(form->cmbLimiter.enabled());

  forward();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kColumns);
  EXPECT_TRUE(form->lstShow.visible());
  EXPECT_EQ(form->lstShow.cell(1, 1), "Eva; Maria");
  EXPECT_FALSE(form->cmdFor.enabled()) << "no columns yet";
  select(0, {"Nachname", "Vorname"});
  select(1, {"Telefon", "Mobil"});
  select(2, {"Straße", "PLZ", "Ort"});
  EXPECT_EQ(form->lstShow.columns()[2].kind, ColumnKind::kNumber);

  forward();
  EXPECT_EQ(form->txtHeadName.text(), "Nachname Vorname");
  EXPECT_EQ(form->txtHead(1).text(), "Mobil");
  form->txtIndex(1).type("mobil;x");
  EXPECT_EQ(form->txtIndex(1).text(), "mobil,x") << "no separator can be typed";
  form->txtIndex(1).take_user_text("mobil;y");
  EXPECT_EQ(form->txtIndex(1).text(), "mobil,y") << "nor pasted";
  form->txtIndex(1).set_text("mobil");

  forward();
  ASSERT_EQ(form->cmbFlipAdress.count(), 6);
  form->cmbFlipAdress.take_user_index(2);
  EXPECT_EQ(form->txtAdres(0).text(), "PLZ/Ort/Straße");
  form->chk1(0).take_user_click();
  EXPECT_EQ(form->txtAdresBind(0).text(), "PLZ/Ort/Straße");

  forward();
  EXPECT_EQ(rows(),
            (Texts{"Meier Hans|030123456|12345 Berlin Hauptstr. 1", "Meier Hans mobil|01711234567|",
                   "Huber Eva, Maria|0897654321|80331 München Am Ring 2"}));
  EXPECT_EQ(form->StatusBar.panel(3), u8"3 gültige Einträge"_de);
  EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de);

  finish();
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "data"}));
  EXPECT_TRUE(machine.dialogs.boxes.empty());
  EXPECT_EQ(book(),
            "Alt;0309;x;-1;5;0;Ort;;[vcd(card)vcd]\r\n"
            "Meier Hans;030123456;0;0;0;0;12345 Berlin Hauptstr. 1;;[vcd()vcd]\r\n"
            "Meier Hans mobil;01711234567;0;0;0;0;;;[vcd()vcd]\r\n"
            "Huber Eva, Maria;0897654321;0;0;0;0;80331 München Am Ring 2;;[vcd()vcd]\r\n");
}

TEST_F(FileImport, ChoicesOfOneRunAreThereInTheNext) {
  go_to(Page::kNames);
  form->chkFlip.take_user_click();
  form->txtIndex(0).set_text("Festnetz");
  forward();
  form->cmbFlipAdress.take_user_index(4);
  form->chk1(1).take_user_click();
  form->chk2(0).take_user_click();
  forward();
  form->optAsk(2).take_user_click();
  finish();

  start();
  EXPECT_TRUE(form->optAsk(2).chosen());
  take_file(kContacts);
  forward();
  EXPECT_EQ(form->lstHeader(0).selected_positions(), (std::vector<int>{0, 1}));
  EXPECT_EQ(form->lstHeader(2).selected_positions(), (std::vector<int>{4, 5, 6}));
  EXPECT_TRUE(machine.dialogs.boxes.empty());
  forward();
  EXPECT_EQ(form->txtHeadName.text(), "Vorname Nachname");
  EXPECT_EQ(form->txtIndex(0).text(), "Festnetz");
  forward();
  EXPECT_EQ(form->cmbFlipAdress.list_index(), 4);
  EXPECT_TRUE(form->chk1(1).ticked());
  EXPECT_FALSE(form->chk1(0).ticked());
  EXPECT_EQ(form->txtAdresBind(1).text(), "Ort/Straße/PLZ");
  forward();
  EXPECT_EQ(rows()[0], "Hans Meier Festnetz|030123456|");
  EXPECT_EQ(rows()[1], "Hans Meier|01711234567|Berlin Hauptstr. 1 12345");
}

TEST_F(FileImport, GoesBackAndForthWithoutLeavingOldEntries) {
  go_to(Page::kEntries);
  EXPECT_EQ(form->lstImpFinal.count(), 3U);
  back();
  EXPECT_EQ(form->cmdFor.caption(), "Weiter");
  back();
  form->txtIndex(0).set_text("neu");
  forward();
  forward();
  EXPECT_EQ(form->lstImpFinal.count(), 4U)
      << "with its suffix even the shortest name is long enough";
  EXPECT_EQ(rows()[0], "Meier Hans neu|030123456|");
  for (int i = 0; i < 4; ++i) back();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kSource);
  EXPECT_EQ(form->txtImpFile.text(), "");
  EXPECT_TRUE(form->cmdFile.reachable());
  EXPECT_FALSE(form->cmdFor.enabled());
  EXPECT_FALSE(form->cmdBack.enabled());
  take_file("a,b\r\nMeier,0301234567\r\n");
  forward();
  EXPECT_EQ(form->lstHeader(0).count(), 2) << "the new file is read anew";
}

TEST_F(FileImport, UndetectedDelimiterCanBeChosenByHand) {
  start();
  take_file("Name;Nummer,x\r\nMeier;03012345678\r\nHuber\r\nBerg\r\n");
  EXPECT_TRUE(form->labLimError.visible());
  EXPECT_FALSE(form->cmdFor.enabled());
  form->cmbLimiter.take_user_index(0);
  EXPECT_FALSE(form->labLimError.visible());
  EXPECT_TRUE(form->cmdFor.enabled());
  forward();
  EXPECT_EQ(form->lstHeader(0).item(1), "Nummer,x");
}

TEST_F(FileImport, ADroppedFileIsTakenWhereASourceCanBeChosen) {
  start();
  machine.files.put("C:\\other.csv", kContacts);
  machine.files.add_folder("C:\\folder");
  form->on_drop_file("C:\\other.csv");
  EXPECT_EQ(form->StatusBar.panel(2), "Trennzeichen erkannt");
  form->on_drop_file("C:\\folder");
  EXPECT_EQ(form->txtImpFile.text(), "C:\\other.csv") << "a folder is no file";
  EXPECT_TRUE(form->cmdFor.enabled());
  forward();
  machine.files.put(kContactsPath, kContacts);
  form->on_drop_file(kContactsPath);
  EXPECT_EQ(form->wizard.CurrentPage, Page::kColumns);
  EXPECT_EQ(form->txtImpFile.text(), "C:\\other.csv");
}

TEST_F(FileImport, HeaderWithoutDelimiterLeadsBackToTheSource) {
  start();
  take_file("Name\r\nMeier;1;2;3\r\n");
  forward();
  EXPECT_EQ(last_box(),
            u8"Keine zulässigen Trennzeichen gefunden oder Format ungültig!\r\n"
            u8"Ein Import der Daten ist nicht möglich!"_de);
  EXPECT_EQ(machine.dialogs.boxes.back().style, MessageStyle::kCritical);
  EXPECT_EQ(form->wizard.CurrentPage, Page::kSource);
  EXPECT_EQ(form->txtImpFile.text(), "");
}

TEST_F(FileImport, IncompleteHeaderOnlyWarns) {
  start();
  take_file("Name;;Nummer\r\nMeier;;03012345678\r\n");
  forward();
  EXPECT_EQ(last_box(),
            u8"Die Kopfzeile ist unvollständig!\r\n"
            u8"Ein fehlerfreier Import kann nicht garantiert werden!"_de);
  EXPECT_EQ(form->lstHeader(3).count(), 3);
}

TEST_F(FileImport, SavedColumnsThatAreMissingAreNamed) {
  machine.files.put(kSettingsPath,
                    "[Import]\r\nSelNames1=Nachname\r\nSelNumbers1=Fax\r\nSelAddress11=Weg\r\n"
                    "SelAddress21=Ort\r\nSelAddress22=Land\r\n");
  start();
  take_file(kContacts);
  forward();
  EXPECT_EQ(last_box(),
            u8"Der letzte Import hatte eine andere Datenstruktur!\r\n"
            u8"Die Spalten konnten nicht automatisch ausgewählt werden!\r\n"
            u8"Bitte überprüfen Sie folgende Bereiche:\r\n"
            u8"Nummer\r\nAdresse 1"_de);
  EXPECT_EQ(form->lstHeader(0).selected_count(), 1);
  EXPECT_EQ(form->lstHeader(3).selected_count(), 1);
}

TEST_F(FileImport, ColumnsWhoseHeaderHasBlanksOrQuotesAroundItAreFoundAgain) {
  constexpr std::string_view kSpaced =
      "Name; Tel;'Mobil';Mobil\r\nMeier;0301234567;01701234567;\r\n";
  go_to(Page::kEntries, kSpaced, {{"Name"}, {" Tel", "'Mobil'"}});
  finish();
  start();
  take_file(kSpaced);
  forward();
  EXPECT_TRUE(machine.dialogs.boxes.empty()) << last_box();
  EXPECT_EQ(form->lstHeader(1).selected_positions(), (std::vector<int>{1, 3}))
      << "a text that is there as it stands wins";
}

TEST_F(FileImport, AnUnnamedColumnCountsAsAPartOfTheAddress) {
  go_to(Page::kAddresses, "Name;Tel;;PLZ;Ort\r\nMeier;0301234567;Weg 1;12345;Berlin\r\n",
        {{"Name"}, {"Tel"}, {"", "PLZ", "Ort"}});
  EXPECT_EQ(form->cmbFlipAdress.items()[0], "/PLZ/Ort");
  form->cmbFlipAdress.take_user_index(2);
  form->chk1(0).take_user_click();
  forward();
  EXPECT_EQ(rows(), Texts{"Meier|0301234567|12345 Berlin Weg 1"});
}

TEST_F(FileImport, AddressListsTakeThreeColumns) {
  start();
  take_file(kContacts);
  forward();
  for (const int position : {0, 2, 4, 5}) form->lstHeader(2).take_user_selection(position, true);
  EXPECT_EQ(form->lstHeader(2).selected_positions(), (std::vector<int>{0, 2, 4}));
}

TEST_F(FileImport, AsksForTheOwnCodesUntilTheyAreGoodEnough) {
  machine.files.put("C:\\Quenda\\data\\Quenda.ini", "");
  go_to(Page::kAddresses);
  int asked = 0;
  machine.events.on_modal = [&](Form& shown) {
    auto& dialog = dynamic_cast<fOVWInput&>(shown);
    EXPECT_EQ(dialog.caption(), "Quenda - Import");
    EXPECT_EQ(dialog.txtLVW.text(), "0049");
    EXPECT_FALSE(dialog.cmdOK.enabled());
    if (++asked == 1) return;  // closed without an answer
    dialog.txtOVW.type("x40");
    EXPECT_EQ(dialog.txtOVW.text(), "040") << "digits only";
    dialog.cmdOK.take_user_click();
  };
  forward();
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(form->txtOVW.text(), "040");
  EXPECT_EQ(form->lstImpFinal.count(), 3U);
}

TEST_F(FileImport, WithoutANameRuleShortNamesPass) {
  go_to(Page::kAddresses);
  form->chkNameLen.set_ticked(false);
  forward();
  EXPECT_EQ(form->lstImpFinal.count(), 4U);
}

TEST_F(FileImport, RecordsThatLackAChosenColumnStopTheComposition) {
  // The third record overflows the padding, so that the fourth keeps its missing columns.
  go_to(Page::kEntries,
        "Name;a;b;Nummer\r\nEins;;;03011111111\r\n" + std::string(33'000, ';') + "\r\nZwei\r\n",
        {{"Name"}, {"Nummer"}});
  EXPECT_EQ(form->lstImpFinal.count(), 0U);
  EXPECT_FALSE(form->cmdFor.enabled());
}

TEST_F(FileImport, AnEndlessColumnNameIsNotKeptByEachList) {
  start();
  take_file("Name;" + std::string(100'000, 'x') + "\r\n");
  form->cmbLimiter.take_user_index(0);
  forward();
  ASSERT_EQ(form->lstHeader(0).count(), 2);
  EXPECT_EQ(form->lstHeader(0).item(1).size(), 65'536U);
}

TEST_F(FileImport, UnreadableFileLeavesForwardDisabled) {
  start();
  machine.files.put(kContactsPath, "a;b\r\n");
  machine.files.refuse_reading(kContactsPath, kFaultPermissionDenied);
  form->txtImpFile.take_user_text(kContactsPath);
  EXPECT_FALSE(form->cmdFor.enabled());
  EXPECT_TRUE(form->labLimError.visible());
  form->txtImpFile.take_user_text("C:\\missing.csv");
  EXPECT_FALSE(form->cmdFor.enabled());
}

TEST_F(FileImport, CancelInALongLoopEndsTheProgram) {
  start();
  std::string text = "Name;Nummer\r\n";
  for (int i = 0; i < 2000; ++i) text += "Meier;0301234567\r\n";
  take_file(text);
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    EXPECT_FALSE(form->cmdBack.reachable()) << "nothing but cancel takes input while work runs";
    form->cmdCancel.take_user_click();
  };
  EXPECT_THROW(forward(), EndProgram);
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "cancel"}));
  EXPECT_TRUE(machine.host_link.shut);
  EXPECT_EQ(machine.files.writes(kBookPath), 0);
}

TEST_F(FileImport, CancelWhileALargeFileIsReadEndsTheProgramAndASmallOneIsReadAtOnce) {
  start();
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    form->cmdCancel.take_user_click();
  };
  take_file(kContacts);
  EXPECT_TRUE(form->cmdFor.enabled()) << "keys of a path that is still typed are not lost";
  std::string large = "Name;Nummer\r\n";
  large.resize(9'000'000, ' ');
  EXPECT_THROW(take_file(large), EndProgram);
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "cancel"}));
}

}  // namespace
}  // namespace quenda

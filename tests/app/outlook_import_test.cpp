#include <gtest/gtest.h>

#include <string>

#include "book/pages/fOVWInput.h"
#include "tests/shared/fake_outlook.h"
#include "tests/shared/wizard_fixture.h"
#include "text/fault.h"
#include "text/literal_1252.h"

// Outlook as a source, through the controls.
namespace quenda {
namespace {

class OutlookImport : public WizardTest {
 protected:
  static std::shared_ptr<FakeObject> contact(const std::string& first, const std::string& home,
                                             const std::string& mobile) {
    return outlook_contact({{"FirstName", first},
                            {"LastName", "Muster"},
                            {"HomeTelephoneNumber", home},
                            {"MobileTelephoneNumber", mobile},
                            {"HomeAddressPostalCode", "12345"},
                            {"HomeAddressCity", "Berlin"},
                            {"HomeAddressStreet", "Weg 1"}});
  }

  /// Starts the tool with this Outlook and lets it be found.
  std::shared_ptr<FakeObject> start_with(const std::string& version,
                                         std::vector<std::shared_ptr<FakeObject>> items) {
    auto list = install_outlook(machine.automation, version, std::move(items));
    start();
    form->tmOLcheck.take_tick();
    return list;
  }
};

TEST_F(OutlookImport, RunsToTheBookAndBackAgain) {
  start_with("16.0.4266.1001", {contact("Eva", "+49 30 1234567", "0171 55555"),
                                outlook_distribution_list(), contact("Udo", "030 7654321", "")});
  EXPECT_EQ(form->labOLver.caption(), u8"Outlook®v16  v16"_de);
  EXPECT_EQ(form->StatusBar.panel(2), "3 Kontakte gefunden");
  form->cmdOutlook.take_user_click();
  EXPECT_EQ(form->StatusBar.panel(1), "Importmode: Outlook");
  EXPECT_TRUE(form->frmImpOL.visible());
  EXPECT_FALSE(form->frmImp(0).visible()) << "keys would lead to what cannot be seen";
  EXPECT_EQ(form->lstImport.count(), 3U);
  EXPECT_EQ(form->StatusBar.panel(3), u8"3 Einträge zum Import"_de);
  form->chkImport(7).take_user_click();
  EXPECT_EQ(form->lstImport.count(), 2U) << "the preview follows the ticks";
  form->txtImport(1).take_user_text("a;b");
  EXPECT_EQ(form->lstImport.cell(0, 0), "Eva Muster a,b") << "no separator gets in";
  form->txtImport(1).take_user_text("zuhause");
  EXPECT_EQ(form->lstImport.cell(0, 0), "Eva Muster zuhause");
  form->chkFlipName.take_user_click();
  EXPECT_EQ(form->lstImport.cell(0, 0), "Muster Eva zuhause");
  form->chkFlipAdress.take_user_click();
  forward();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_EQ(rows(), (Texts{"Muster Eva zuhause|0301234567|Weg 1, 12345 Berlin",
                           "Muster Udo zuhause|0307654321|Weg 1, 12345 Berlin"}));
  back();
  EXPECT_TRUE(form->frmImpOL.visible());
  EXPECT_FALSE(form->frmImp(4).visible());
  EXPECT_TRUE(form->cmdFor.enabled());
  EXPECT_EQ(form->cmdFor.caption(), "Weiter");
  forward();
  finish();
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "data"}));
  const std::string settings = machine.files.content(kSettingsPath);
  for (const auto* line : {"OlNumber=10010000000\r\n", "OlNameFlip=1\r\n", "OlAdrFlip=1\r\n",
                           "OlAdress=10010000000000\r\n", "OLNameExt1=zuhause\r\n"}) {
    EXPECT_NE(settings.find(line), std::string::npos) << line << settings;
  }
}

TEST_F(OutlookImport, TheWayOnIsOpenBehindTheQuestionForTheOwnCodes) {
  machine.files.put("C:\\Quenda\\data\\Quenda.ini", "");
  start_with("16.0", {contact("Eva", "030 1234567", "")});
  form->cmdOutlook.take_user_click();
  machine.events.on_modal = [&](Form& shown) {
    EXPECT_TRUE(form->cmdFor.enabled());
    EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de);
    auto& dialog = dynamic_cast<fOVWInput&>(shown);
    EXPECT_TRUE(dialog.labWithoutAreaCode.visible());
    EXPECT_FALSE(dialog.labRequired.visible()) << "one reason at a time";
    dialog.txtOVW.type("30");
    dialog.cmdOK.take_user_click();
  };
  forward();
  EXPECT_EQ(rows().size(), 1U);
  machine.events.on_modal = [](Form&) { raise_fault(kFaultInvalidCall); };
  back();
  form->txtOVW.set_text("");
  forward();
  EXPECT_FALSE(form->cmdFor.enabled()) << "the question failed";
  EXPECT_EQ(rows(), Texts{});
}

TEST_F(OutlookImport, AfterAFailedWriteEditsAreKept) {
  machine.files.refuse_writing(kBookPath, kFaultDiskFull);
  start_with("16.0", {contact("Eva", "030 1234567", ""), contact("Udo", "030 7654321", "")});
  form->cmdOutlook.take_user_click();
  forward();
  form->lstImpFinal.take_user_select(0);
  form->cmdDel.take_user_click();
  forward();
  back();
  EXPECT_EQ(rows(), Texts{"Udo Muster privat|0307654321|12345 Berlin, Weg 1"});
  EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de);
  back();
  EXPECT_TRUE(form->frmImpOL.visible());
}

TEST_F(OutlookImport, BackTwiceReturnsToTheSource) {
  start_with("15.0.0.4420", {contact("Eva", "030 1234567", "")});
  EXPECT_EQ(form->labOLver.caption(), u8"Outlook®2013  v15"_de);
  form->cmdOutlook.take_user_click();
  forward();
  back();
  back();
  EXPECT_FALSE(form->source.IsOutlookSource);
  EXPECT_TRUE(form->frmImp(0).visible());
  EXPECT_FALSE(form->frmImpOL.visible());
  EXPECT_TRUE(form->cmdOutlook.reachable());
}

TEST_F(OutlookImport, AFileChosenBeforeIsForgotten) {
  start_with("16.0", {contact("Eva", "030 1234567", "")});
  take_file("Name;Telefon\r\nUdo;030 7654321\r\n");
  EXPECT_TRUE(form->cmdFor.enabled());
  form->cmdOutlook.take_user_click();
  forward();
  EXPECT_EQ(rows(), (Texts{"Eva Muster privat|0301234567|12345 Berlin, Weg 1"}));
  back();
  back();
  EXPECT_TRUE(form->cmdFile.reachable());
  EXPECT_TRUE(form->txtImpFile.reachable());
  take_file("Name;Telefon\r\nUdo;030 7654321\r\n");
  forward();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kColumns);
}

TEST_F(OutlookImport, WithoutTickedNumbersThereIsNoWayForward) {
  start_with("16.0", {contact("Eva", "", "0171 5555555")});
  form->cmdOutlook.take_user_click();
  EXPECT_TRUE(form->cmdFor.enabled());
  form->chkImport(7).take_user_click();
  EXPECT_EQ(form->lstImport.count(), 0U);
  EXPECT_FALSE(form->cmdFor.enabled());
  EXPECT_FALSE(form->txtImport(7).enabled());
  EXPECT_FALSE(form->chkAdr(17).enabled());
  back();
  form->cmdOutlook.take_user_click();
  EXPECT_FALSE(form->cmdFor.enabled());
  form->chkImport(7).take_user_click();
  EXPECT_TRUE(form->cmdFor.enabled());
}

TEST_F(OutlookImport, TheLabelSaysWhatWasFound) {
  start();
  form->tmOLcheck.take_tick();
  EXPECT_EQ(form->labOLver.caption(), "Outlook nicht installiert!");
  EXPECT_EQ(form->StatusBar.panel(2), "Outlook nicht installiert!");
  EXPECT_TRUE(form->labOLhint.visible()) << "how to come by the contacts without";
  EXPECT_FALSE(form->cmdOutlook.enabled());
  EXPECT_FALSE(form->tmOLcheck.enabled());
  EXPECT_TRUE(app->errors.last_report().empty()) << "no fault is reported";

  start_with("14.0.7", {});
  EXPECT_EQ(form->labOLver.caption(), u8"Outlook®2010  v14 Keine Daten gefunden!"_de);
  EXPECT_EQ(form->StatusBar.panel(2), "0 Kontakte gefunden");
  EXPECT_FALSE(form->labOLhint.visible());
  EXPECT_FALSE(form->cmdOutlook.enabled());
}

TEST_F(OutlookImport, FoundLateItLeavesTheStatusOfAFileTakenMeanwhile) {
  install_outlook(machine.automation, "16.0", {contact("Eva", "030 1234567", "")});
  start();
  take_file("Name;Telefon\r\nUdo;030 7654321\r\n");
  form->tmOLcheck.take_tick();
  EXPECT_EQ(form->StatusBar.panel(2), "Trennzeichen erkannt");
  EXPECT_EQ(form->labOLver.caption(), u8"Outlook®v16  v16"_de);
  EXPECT_TRUE(form->cmdOutlook.enabled());
}

TEST_F(OutlookImport, AFaultWhileReadingIsSaidAndNothingHalfIsOffered) {
  const auto udo = contact("Udo", "030 7654321", "");
  start_with("16.0", {contact("Eva", "030 1234567", ""), udo});
  udo->faults["BusinessFaxNumber"] = kFaultAutomation;
  form->cmdOutlook.take_user_click();
  EXPECT_EQ(form->StatusBar.panel(2), u8"Outlook: Ein Import der Daten ist nicht möglich!"_de);
  EXPECT_EQ(form->lstImport.count(), 0U);
  EXPECT_TRUE(form->frmImpOL.visible());
  EXPECT_FALSE(form->cmdFor.enabled());
  EXPECT_TRUE(machine.dialogs.boxes.empty());

  udo->faults.clear();
  back();
  form->cmdOutlook.take_user_click();
  EXPECT_EQ(form->lstImport.count(), 2U) << "another try is open to the user";
  EXPECT_TRUE(form->cmdFor.enabled());
}

TEST_F(OutlookImport, OnlyCancelWorksWhileContactsAreRead) {
  start_with("16.0", {contact("Eva", "030 1234567", ""), contact("Udo", "030 7654321", "")});
  machine.events.on_yield = [&] {
    EXPECT_FALSE(form->chkImport(1).enabled());
    EXPECT_FALSE(form->cmdBack.enabled());
    form->chkImport(1).take_user_click();
  };
  form->cmdOutlook.take_user_click();
  EXPECT_EQ(form->lstImport.count(), 2U);
  EXPECT_TRUE(form->chkImport(1).enabled());
  back();
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    form->cmdCancel.take_user_click();
  };
  EXPECT_THROW(form->cmdOutlook.take_user_click(), EndProgram);
  EXPECT_EQ(machine.host_link.texts.back(), "cancel");
}

}  // namespace
}  // namespace quenda

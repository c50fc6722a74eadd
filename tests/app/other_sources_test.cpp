#include <gtest/gtest.h>

#include <string>

#include "support/literal_1252.h"
#include "tests/shared/wizard_fixture.h"

// The call log and Outlook as sources, through the controls.
namespace quenda {
namespace {

constexpr std::string_view kLogPath = "C:\\Logs\\ISPY.LOG";
constexpr std::string_view kLog =
    "2014-03-02 17:05:09 Erika Mustermann [#0301234567] ok\r\n"
    "2014-03-02 17:06:00 Erika Mustermann [#0301234567] ok\r\n"
    "2014-03-02 17:07:00 <unbekannt> [#0302222222]\r\n"
    "kaputt\r\n"
    "2014-03-03 08:00:00 Hans Meier [#089765] ok\r\n";

class IspyImport : public WizardTest {};

TEST_F(IspyImport, GoesStraightToTheEntries) {
  start();
  machine.files.put(kLogPath, kLog);
  machine.dialogs.paths.push_back(std::string(kLogPath));
  form->cmdIspy.take_user_click();
  EXPECT_EQ(machine.dialogs.filters[0][0], (FileFilter{"ISpy log", "ISpy.log"}));
  EXPECT_EQ(form->StatusBar.panel(1), "Importmode: ISpy");
  EXPECT_FALSE(form->cmbLimiter.enabled());
  forward();
  EXPECT_EQ(form->wizard.CurrentPage, 4);
  EXPECT_EQ(rows(), (Texts{"Erika Mustermann|0301234567|", "Hans Meier|089765|"}));
  EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de);
  back();
  EXPECT_EQ(form->wizard.CurrentPage, 0);
  EXPECT_EQ(form->txtImpFile.text(), "");
  take_file(kLog, kLogPath);
  forward();
  finish();
  EXPECT_EQ(book(),
            "Erika Mustermann;0301234567;0;0;0;0;;;[vcd()vcd]\r\n"
            "Hans Meier;089765;0;0;0;0;;;[vcd()vcd]\r\n");
}

class OutlookImport : public WizardTest {
 protected:
  static std::shared_ptr<FakeObject> contact(const std::string& first, const std::string& home,
                                             const std::string& mobile) {
    auto object = std::make_shared<FakeObject>();
    object->type = "ContactItem";
    for (const std::string_view property : kContactProperties) {
      object->texts[std::string(property)] = "";
    }
    object->texts["FirstName"] = first;
    object->texts["LastName"] = "Muster";
    object->texts["HomeTelephoneNumber"] = home;
    object->texts["MobileTelephoneNumber"] = mobile;
    object->texts["HomeAddressPostalCode"] = "12345";
    object->texts["HomeAddressCity"] = "Berlin";
    object->texts["HomeAddressStreet"] = "Weg 1";
    return object;
  }

  void install(const std::string& version, std::vector<std::shared_ptr<FakeObject>> items) {
    auto list = std::make_shared<FakeObject>();
    list->numbers["Count"] = static_cast<long>(items.size());
    list->lists["Item"] = std::move(items);
    auto folder = std::make_shared<FakeObject>();
    folder->objects["Items"] = list;
    auto name_space = std::make_shared<FakeObject>();
    name_space->lists["GetDefaultFolder"].assign(10, folder);
    auto application = std::make_shared<FakeObject>();
    application->texts["Version"] = version;
    application->objects["GetNamespace(MAPI)"] = name_space;
    machine.automation.programs["Outlook.Application"] = application;
  }
};

TEST_F(OutlookImport, RunsToTheBookAndBackAgain) {
  auto list = std::make_shared<FakeObject>();
  list->type = "DistListItem";
  install("16.0.4266.1001", {contact("Eva", "+49 30 1234567", "0171 55555"), list,
                             contact("Udo", "030 7654321", "")});
  start();
  form->tmOLcheck.take_tick();
  EXPECT_EQ(form->labOLver.caption(), u8"Outlook®v16  v16"_de);
  EXPECT_EQ(form->StatusBar.panel(2), "3 Kontakte gefunden");
  form->cmdOutlook.take_user_click();
  EXPECT_EQ(form->StatusBar.panel(1), "Importmode: Outlook");
  EXPECT_TRUE(form->frmImpOL.visible());
  EXPECT_EQ(form->lstImport.count(), 3U);
  form->chkImport(7).take_user_click();
  EXPECT_EQ(form->lstImport.count(), 2U) << "the preview follows the ticks";
  form->txtImport(1).take_user_text("zuhause");
  EXPECT_EQ(form->lstImport.cell(0, 0), "Eva Muster zuhause");
  form->chkFlipAdress.take_user_click();
  forward();
  EXPECT_EQ(form->wizard.CurrentPage, 4);
  EXPECT_EQ(rows(), (Texts{"Eva Muster zuhause|0301234567|Weg 1, 12345 Berlin",
                           "Udo Muster zuhause|0307654321|Weg 1, 12345 Berlin"}));
  back();
  EXPECT_TRUE(form->frmImpOL.visible());
  EXPECT_TRUE(form->cmdFor.enabled());
  forward();
  finish();
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "data"}));
  EXPECT_NE(machine.files.content(kSettingsPath).find("OlNumber=10010000000"), std::string::npos);
}

TEST_F(OutlookImport, BackTwiceReturnsToTheSource) {
  install("15.0.0.4420", {contact("Eva", "030 1234567", "")});
  start();
  form->tmOLcheck.take_tick();
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

TEST_F(OutlookImport, NoOutlookIsSaidOnTheLabel) {
  start();
  form->tmOLcheck.take_tick();
  EXPECT_EQ(form->labOLver.caption(), "Outlook nicht installiert!");
  EXPECT_FALSE(form->cmdOutlook.enabled());
  EXPECT_FALSE(form->tmOLcheck.enabled());
  EXPECT_TRUE(app->errors.last_report().empty()) << "no fault is reported";
}

TEST_F(OutlookImport, CancelBetweenTwoContactsEndsTheProgram) {
  install("16.0", {contact("Eva", "030 1234567", ""), contact("Udo", "030 7654321", "")});
  start();
  form->tmOLcheck.take_tick();
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    form->cmdCancel.take_user_click();
  };
  EXPECT_THROW(form->cmdOutlook.take_user_click(), EndProgram);
  EXPECT_EQ(machine.host_link.texts.back(), "cancel");
}

}  // namespace
}  // namespace quenda

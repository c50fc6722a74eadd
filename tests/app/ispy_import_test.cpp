#include <gtest/gtest.h>

#include <string>

#include "tests/shared/wizard_fixture.h"
#include "text/fault.h"
#include "text/literal_1252.h"

// The call log as a source, through the controls.
namespace quenda {
namespace {

constexpr std::string_view kLogPath = "C:\\Logs\\ISPY.LOG";
constexpr std::string_view kLog =
    "2014-03-02 17:05:09 Erika Mustermann [#0301234567] ok\r\n"
    "2014-03-02 17:06:00 Erika Mustermann [#0301234567] ok\r\n"
    "2014-03-02 17:07:00 <unbekannt> [#0302222222]\r\n"
    "kaputt\r\n"
    "2014-03-02 17:08:00 Al [#0303333333] ok\r\n"
    "2014-03-03 08:00:00 Hans Meier [#089765] ok\r\n";

class IspyImport : public WizardTest {};

TEST_F(IspyImport, GoesStraightToTheEntries) {
  start();
  machine.files.put(kLogPath, kLog);
  machine.dialogs.paths.push_back(std::string(kLogPath));
  form->cmdIspy.take_user_click();
  EXPECT_EQ(machine.dialogs.filters[0],
            (std::vector<FileFilter>{{"ISpy log", "ISpy.log"}, {"Alle Dateien", "*.*"}}));
  EXPECT_EQ(form->StatusBar.panel(1), "Importmode: ISpy");
  EXPECT_FALSE(form->cmbLimiter.enabled());
  forward();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_TRUE(form->chkNameLen.ticked());
  EXPECT_EQ(rows(), (Texts{"Erika Mustermann|0301234567|", "Al|0303333333|", "Hans Meier|089765|"}))
      << "a caller's short name stays";
  EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de);
  back();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kSource);
  EXPECT_EQ(form->txtImpFile.text(), "");
  take_file(kLog, kLogPath);
  forward();
  finish();
  EXPECT_EQ(book(),
            "Erika Mustermann;0301234567;0;0;0;0;;;[vcd()vcd]\r\n"
            "Al;0303333333;0;0;0;0;;;[vcd()vcd]\r\n"
            "Hans Meier;089765;0;0;0;0;;;[vcd()vcd]\r\n");
}

TEST_F(IspyImport, AfterAFailedWriteTheEntriesAreStillThere) {
  machine.files.refuse_writing(kBookPath, kFaultDiskFull);
  start();
  take_file(kLog, kLogPath);
  forward();
  forward();
  back();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de);
  EXPECT_TRUE(form->cmdFor.enabled());
  EXPECT_EQ(rows().size(), 3U);
  back();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kSource);
}

TEST_F(IspyImport, NothingOfAnEarlierSourceIsShown) {
  start();
  take_file(std::string("Datum Zeit Eva [#0301234567];Nummer\r\nx y Udo [#0307654321];1\r\n"));
  take_file("2014-03-02 17:05:09 Ida [#0309999999]", kLogPath);
  forward();
  EXPECT_EQ(rows(), Texts{}) << "a log without a line end has no lines";
  back();
  take_file(kLog, kLogPath);
  forward();
  EXPECT_EQ(rows().size(), 3U);
  back();
  take_file("Name;Nummer\r\n");
  forward();
  select(0, {"Name"});
  select(1, {"Nummer"});
  for (int i = 0; i < 3; ++i) forward();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_EQ(rows(), Texts{});
}

TEST_F(IspyImport, AFaultWhileEntriesAreMadeLeavesNoWayOn) {
  start();
  take_file(kLog, kLogPath);
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    raise_fault(kFaultInvalidCall);
  };
  forward();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_FALSE(form->cmdFor.enabled());
  EXPECT_TRUE(form->cmdBack.enabled());
}

}  // namespace
}  // namespace quenda

#include <gtest/gtest.h>

#include <string>

#include "tests/shared/wizard_fixture.h"
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
  EXPECT_EQ(rows(), (Texts{"Erika Mustermann|0301234567|", "Hans Meier|089765|"}));
  EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de);
  back();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kSource);
  EXPECT_EQ(form->txtImpFile.text(), "");
  take_file(kLog, kLogPath);
  forward();
  finish();
  EXPECT_EQ(book(),
            "Erika Mustermann;0301234567;0;0;0;0;;;[vcd()vcd]\r\n"
            "Hans Meier;089765;0;0;0;0;;;[vcd()vcd]\r\n");
}

}  // namespace
}  // namespace quenda

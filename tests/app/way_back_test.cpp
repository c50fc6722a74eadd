#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/shared/wizard_fixture.h"
#include "text/fault.h"
#include "text/literal_1252.h"

// The copy of the book that is made before an import, and the way back to it.
namespace quenda {
namespace {

using testing::HasSubstr;

constexpr std::string_view kBackup = "C:\\Quenda\\data\\backup\\";
constexpr std::string_view kOld = "Alt;030123456;x;0;5;0;Ort;;[vcd(card)vcd]\r\n";
constexpr std::string_view kZahn = "Zahn;0405550199;0;0;0;0;;;[vcd()vcd]\r\n";
constexpr std::string_view kNeu = "Neu;030123456;x;0;5;0;;;[vcd()vcd]\r\n";
constexpr std::string_view kHuber = "Huber;0897654321;0;0;0;0;;;[vcd()vcd]\r\n";

class WayBackTest : public WizardTest {
 protected:
  static std::string in_backup(std::string_view name) {
    return std::string(kBackup) + std::string(name);
  }
  /// Imports "Neu;030123456", which takes the place of an old entry, and "Huber;0897654321".
  void import_contacts() {
    machine.files.put(kBookPath, text({kOld, kZahn}));
    go_to(Page::kEntries, "Name;Nummer\r\nNeu;030123456\r\nHuber;0897654321\r\n",
          {{"Name"}, {"Nummer"}});
    form->optAsk(1).choose();
    form->chkBackup.set_ticked(true);
    finish();
    ASSERT_EQ(book(), text({kZahn, kNeu, kHuber}));
  }
  static std::string text(std::initializer_list<std::string_view> lines) {
    std::string all;
    for (const std::string_view line : lines) all += line;
    return all;
  }
  void undo() {
    machine.dialogs.answers.push_back(MessageAnswer::kYes);
    form->cmdUndo.take_user_click();
  }
};

TEST_F(WayBackTest, WithoutTheTickNothingIsMadeAndNothingRemembered) {
  machine.files.put(kBookPath, kOld);
  go_to(Page::kEntries, "Name;Nummer\r\nHuber;0897654321\r\n", {{"Name"}, {"Nummer"}});
  EXPECT_FALSE(form->chkBackup.ticked());
  finish();
  EXPECT_FALSE(machine.files.has_folder("C:\\Quenda\\data\\backup"));
  EXPECT_EQ(machine.files.content(kSettingsPath).find("Backup"), std::string::npos);
  start();
  EXPECT_FALSE(form->cmdUndo.visible());
}

TEST_F(WayBackTest, CopiesTheBookAndBringsItBack) {
  import_contacts();
  EXPECT_EQ(machine.files.content(in_backup("Quendabook 2014-03-02 17-05-09.txt")),
            text({kOld, kZahn}));
  EXPECT_THAT(machine.files.content(kSettingsPath), HasSubstr("Backup=1"));
  start();
  EXPECT_TRUE(form->chkBackup.ticked());
  ASSERT_TRUE(form->cmdUndo.visible());
  undo();
  EXPECT_THAT(machine.dialogs.boxes[machine.dialogs.boxes.size() - 2].text,
              HasSubstr("02.03.2014 17:05"));
  EXPECT_THAT(last_box(), HasSubstr(u8"wieder wie davor"_de));
  EXPECT_EQ(book(), text({kOld, kZahn}));
  EXPECT_EQ(machine.host_link.texts.back(), "data");
  EXPECT_FALSE(form->cmdUndo.visible());
  EXPECT_TRUE(machine.files.exists(in_backup("Quendabook 2014-03-02 17-05-09.txt")));
  form->cmdUndo.take_user_click();
  EXPECT_EQ(book(), text({kOld, kZahn}));
}

TEST_F(WayBackTest, LeavesTheBookAloneWhenTheUserSaysNo) {
  import_contacts();
  start();
  machine.dialogs.answers.push_back(MessageAnswer::kNo);
  form->cmdUndo.take_user_click();
  EXPECT_EQ(book(), text({kZahn, kNeu, kHuber}));
  EXPECT_TRUE(form->cmdUndo.visible());
}

TEST_F(WayBackTest, ABookThatWasChangedSinceLosesOnlyWhatTheImportWrote) {
  import_contacts();
  machine.files.put(kBookPath, text({"Eva;0911222;0;0;0;0;;;[vcd()vcd]\r\n", kNeu, kZahn,
                                     "Huber sen.;0897654321;0;0;0;0;;;[vcd()vcd]\r\n"}));
  start();
  undo();
  EXPECT_EQ(book(), text({"Eva;0911222;0;0;0;0;;;[vcd()vcd]\r\n", kOld, kZahn,
                          "Huber sen.;0897654321;0;0;0;0;;;[vcd()vcd]\r\n"}));
  EXPECT_THAT(last_box(), testing::AllOf(HasSubstr(": 1."), HasSubstr("Huber 0897654321")));
  EXPECT_FALSE(form->cmdUndo.visible());
}

TEST_F(WayBackTest, ABookWithoutAnyOfItsEntriesIsLeftAndTheCopyNamed) {
  import_contacts();
  machine.files.put(kBookPath, kZahn);
  start();
  undo();
  EXPECT_EQ(book(), kZahn);
  EXPECT_THAT(last_box(), HasSubstr("C:\\Quenda\\data\\backup"));
  EXPECT_TRUE(form->cmdUndo.visible());
}

TEST_F(WayBackTest, ADamagedCopyIsNotTakenForTheBook) {
  import_contacts();
  machine.files.put(in_backup("Quendabook 2014-03-02 17-05-09.txt"), "x");
  start();
  undo();
  EXPECT_EQ(book(), text({kZahn, kOld}));
}

TEST_F(WayBackTest, ADamagedRecordIsSaid) {
  import_contacts();
  machine.files.put(in_backup("Quendabook.undo"), "Quenda import, to be taken back\r\nx");
  start();
  form->cmdUndo.take_user_click();
  EXPECT_THAT(last_box(), HasSubstr(u8"beschädigt"_de));
  EXPECT_EQ(book(), text({kZahn, kNeu, kHuber}));
}

TEST_F(WayBackTest, ABookThatTheImportHasMadeIsEmptyAgain) {
  machine.files.remove(kBookPath);
  go_to(Page::kEntries, "Name;Nummer\r\nHuber;0897654321\r\n", {{"Name"}, {"Nummer"}});
  form->chkBackup.set_ticked(true);
  finish();
  start();
  undo();
  EXPECT_TRUE(machine.files.exists(kBookPath));
  EXPECT_EQ(book(), "");
}

TEST_F(WayBackTest, KeepsAsManyCopiesAsTheSuiteDoesAndDeletesNothingElse) {
  machine.files.put("C:\\Quenda\\data\\Quenda.ini",
                    "[General]\r\nmyVWL=49\r\nmyVWO=30\r\nBackupCount=2\r\n");
  machine.files.put(in_backup("Quendabook 2001-01-01 00-00-00.txt"), "of the user");
  for (int day = 1; day <= 4; ++day) {
    machine.clock.time.day = day > 3 ? 3 : day;  // two in one second
    go_to(Page::kEntries, "Name;Nummer\r\nHuber;089765432" + std::to_string(day) + "\r\n",
          {{"Name"}, {"Nummer"}});
    form->chkBackup.set_ticked(true);
    finish();
  }
  EXPECT_FALSE(machine.files.exists(in_backup("Quendabook 2014-03-01 17-05-09.txt")));
  EXPECT_FALSE(machine.files.exists(in_backup("Quendabook 2014-03-02 17-05-09.txt")));
  EXPECT_TRUE(machine.files.exists(in_backup("Quendabook 2014-03-03 17-05-09.txt")));
  EXPECT_TRUE(machine.files.exists(in_backup("Quendabook 2014-03-03 17-05-09 (2).txt")));
  EXPECT_TRUE(machine.files.exists(in_backup("Quendabook 2001-01-01 00-00-00.txt")));
}

TEST_F(WayBackTest, AListThatSomebodyHasChangedDeletesNothingElsewhere) {
  machine.files.put("C:\\Quenda\\data\\Quenda.ini",
                    "[General]\r\nmyVWL=49\r\nmyVWO=30\r\nBackupCount=1\r\n");
  machine.files.put(in_backup("Quendabook.list"),
                    "..\\sett_import.ini\r\nQuendabook ..\\x.txt\r\n");
  machine.files.put(in_backup("Quendabook ..\\x.txt"), "x");
  import_contacts();
  EXPECT_TRUE(machine.files.exists(kSettingsPath));
  EXPECT_TRUE(machine.files.exists(in_backup("Quendabook ..\\x.txt")));
}

TEST_F(WayBackTest, WithoutACopyNothingIsImported) {
  machine.files.put(kBookPath, kOld);
  machine.files.refuse_writing(in_backup("Quendabook 2014-03-02 17-05-09.txt"), kFaultDiskFull);
  go_to(Page::kEntries, "Name;Nummer\r\nHuber;0897654321\r\n", {{"Name"}, {"Nummer"}});
  form->chkBackup.set_ticked(true);
  forward();
  EXPECT_EQ(book(), kOld);
  EXPECT_THAT(last_box(), HasSubstr("konnte nicht im Ordner C:\\Quenda\\data\\backup gesichert"));
  back();
  form->chkBackup.set_ticked(false);
  finish();
  EXPECT_EQ(book(), text({kOld, kHuber}));
}

class ReportOfSettings : public WizardTest {
 protected:
  void import_contacts(std::string_view setting) {
    machine.files.put(kSettingsPath, "[Import]\r\nReport=" + std::string(setting) + "\r\n");
    go_to(Page::kEntries, "Name;Nummer\r\nHuber;0897654321\r\nKurz;12\r\n", {{"Name"}, {"Nummer"}});
    finish();
  }
};

TEST_F(ReportOfSettings, IsWrittenAfterTheBook) {
  import_contacts("C:\\Quenda\\data\\report.csv");
  const std::string report = machine.files.content("C:\\Quenda\\data\\report.csv");
  EXPECT_THAT(report, HasSubstr("2;1;1;Huber;0897654321;0897654321;;neu;"));
  EXPECT_THAT(report, HasSubstr("3;2;1;Kurz;012;12;;kurz;"));
  EXPECT_THAT(machine.files.content(kSettingsPath),
              HasSubstr("Report=C:\\Quenda\\data\\report.csv"));
}

TEST_F(ReportOfSettings, ThatCannotBeWrittenIsSaidAndCostsNoImport) {
  import_contacts(kBookPath);
  EXPECT_THAT(machine.dialogs.boxes.front().text, HasSubstr("Bericht kann nicht geschrieben"));
  EXPECT_EQ(book(), kHuber);
}

}  // namespace
}  // namespace quenda

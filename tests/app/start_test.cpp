#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <string>

#include "app/program.h"
#include "book/pages/fImportItemEdit.h"
#include "book/pages/fImportMsg.h"
#include "book/pages/fOVWInput.h"
#include "settings/ini/ini_text.h"
#include "settings/ini/language_keys.h"
#include "tests/shared/wizard_fixture.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"

// Start, host link, shutdown, and the controls that belong to no page.
namespace quenda {
namespace {

class Start : public WizardTest {};

TEST_F(Start, SecondInstanceEndsSilently) {
  machine.system.previous = true;
  EXPECT_THROW(start(), EndProgram);
  EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(Start, WithoutTheSwitchSaysWhereToStartFromAndEnds) {
  machine.system.arguments = "/I --help";
  EXPECT_THROW(start(), EndProgram);
  EXPECT_EQ(last_box(),
            u8"Ein Direktaufruf dieses Tools ist nicht vorgesehen!\r\nDer Aufruf "
            u8"erfolgt über den Menüeintrag \"Import\" im Quenda-Telefonbuch!"_de);
  EXPECT_EQ(machine.dialogs.boxes.back().title, "Quenda - Import");
  EXPECT_EQ(machine.files.writes(kSettingsPath), 0);
  machine.system.arguments = "x/ix";
  EXPECT_NO_THROW(start());
}

TEST_F(Start, ShowsTheFirstPageWithTheDefaults) {
  start(false);
  EXPECT_EQ(form->caption(), "Quenda - Import");
  EXPECT_EQ(form->txtStateCode.text(), "0049");
  EXPECT_EQ(form->txtOVW.text(), "030");
  EXPECT_EQ(form->cmbLimiter.items(), (Texts{"Semikolon", "Komma", "Tabulator"}));
  EXPECT_TRUE(form->frmImp(0).visible());
  EXPECT_TRUE(form->optAsk(0).chosen());
  EXPECT_TRUE(form->chkNameLen.ticked());
  std::string ticks;
  for (const auto& box : form->chkImport) ticks += box->ticked() ? '1' : '0';
  EXPECT_EQ(ticks, "10010010000");
  EXPECT_TRUE(form->chkAdr(1).ticked());
  EXPECT_TRUE(form->chkAdr(4).ticked());
  EXPECT_EQ(form->place().left, 500);
  EXPECT_EQ(form->StatusBar.panel(2), "Suche Outlook");
  EXPECT_TRUE(form->tmOLcheck.enabled());
}

TEST_F(Start, NoTwoControlsShareAPlaceOnTheWayOfTheTabKey) {
  start();
  std::map<int, std::string> places;
  for (const Control* control : form->controls()) {
    if (control->tab_index() < 0) continue;
    const auto [place, is_new] = places.emplace(control->tab_index(), control->name());
    EXPECT_TRUE(is_new) << control->name() << " and " << place->second;
  }
  EXPECT_GT(places.size(), 50U);
}

TEST_F(Start, WildSettingsAreBoundAndMissingOnesSkipped) {
  machine.files.put(kSettingsPath,
                    "[Dimensions]\r\nImportTop=-5\r\nImportLeft=70000\r\n"
                    "[Import]\r\nAsk=7\r\nLen=0\r\nOlNumber=0x1\r\nOlAdress=000000000001\r\n");
  start();
  EXPECT_TRUE(form->optAsk(2).chosen());
  EXPECT_FALSE(form->chkNameLen.ticked());
  EXPECT_EQ(form->place().top, 0);
  EXPECT_EQ(form->place().left, 70000);
  EXPECT_FALSE(form->chkImport(1).ticked());
  EXPECT_TRUE(form->chkImport(3).ticked());
  EXPECT_FALSE(form->chkAdr(1).ticked());
  EXPECT_TRUE(form->chkAdr(17).ticked()) << "position 12 feeds box 17, there is no box 12";
}

TEST_F(Start, LinkEventsChangeTheStateAndTheThirdPanelOnly) {
  start(false);
  machine.host_link.events.opened();
  EXPECT_TRUE(form->wizard.link_open);
  EXPECT_EQ(form->StatusBar.panel(3), "Telefonbuch DDE-Verbindung: aktiv");
  machine.host_link.events.closed();
  EXPECT_FALSE(form->wizard.link_open);
  EXPECT_EQ(form->StatusBar.panel(3), "Telefonbuch DDE-Verbindung: beendet");
  machine.host_link.events.failed();
  EXPECT_EQ(form->StatusBar.panel(3), "Telefonbuch DDE-Verbindung: abgebrochen");
  EXPECT_EQ(form->txtDDE.text(), "ON");
  EXPECT_EQ(machine.host_link.topic, "book");
  EXPECT_EQ(machine.host_link.item, "txtDDE");
}

TEST_F(Start, ClosingSavesThePositionAndTellsTheHost) {
  start();
  form->take_user_position(1200, 900);
  EXPECT_THROW(form->unload(CloseReason::kCloseBox), EndProgram);
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "cancel"}));
  EXPECT_EQ(machine.files.content(kSettingsPath),
            "[Dimensions]\r\nImportTop=900\r\nImportLeft=1200\r\n");
}

TEST_F(Start, ABorderThatTheUserHasMovedIsThereAgain) {
  start();
  form->splPreview.take_user_share(300);
  EXPECT_THROW(form->unload(CloseReason::kCloseBox), EndProgram);
  EXPECT_THAT(machine.files.content(kSettingsPath),
              testing::HasSubstr("ImportPreviewBorder=300\r\n"));
  start();
  EXPECT_EQ(form->splPreview.share(), 300);
}

TEST_F(Start, AFaultThatNoProcedureCaughtEndsTheProgramInOrder) {
  app = std::make_unique<App>(machine.services);
  form = std::make_unique<fMain>(*app);
  const auto loop = [&] {
    form->Form_LinkOpen();
    raise_fault(kFaultInvalidCall);
  };
  EXPECT_THROW(run_program(*app, *form, loop), EndProgram);
  EXPECT_EQ(last_box(), "Es ist ein Fehler aufgetreten!\r\nsiehe Datei: \\log\\error.log");
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "cancel"}));
  EXPECT_FALSE(form->loaded());
}

TEST_F(Start, InEnglishNothingStaysGermanButTheDelimiters) {
  std::ifstream in(QUENDA_SOURCE_DIR "/base/language_en.ini", std::ios::binary);
  const std::string english{std::istreambuf_iterator<char>(in), {}};
  machine.files.put("C:\\Quenda\\data\\Quenda.ini", "[General]\r\nLanguage=en\r\nmyVWO=30\r\n");
  machine.files.put("C:\\Quenda\\base\\language_en.ini", english);
  start();
  const IniText texts(english);
  std::set<std::string, std::less<>> german;
  for (const LanguageKey& entry : kLanguageKeys) {
    if (texts.text("Data", entry.key, "") != entry.german) german.emplace(entry.german);
  }
  EXPECT_EQ(form->cmdFor.caption(), "Next");
  fImportMsg question(*app);
  question.fill("030", "", "");
  for (const ControlHost* shown :
       {static_cast<const ControlHost*>(form.get()), static_cast<const ControlHost*>(&question)}) {
    for (const Control* control : shown->controls()) {
      EXPECT_FALSE(german.contains(control->caption())) << control->name();
    }
  }
  EXPECT_EQ(form->cmbLimiter.items()[0], "Semikolon") << "these three are never translated";
}

TEST_F(Start, BoxesOfARowExcludeEachOther) {
  start();
  form->txtAdres(0).set_text("eins");
  form->txtAdres(1).set_text("zwei");
  form->chk2(0).set_ticked(true);
  EXPECT_EQ(form->txtAdresBind(1).text(), "eins");
  form->chk2(1).set_ticked(true);
  EXPECT_FALSE(form->chk2(0).ticked());
  EXPECT_EQ(form->txtAdresBind(1).text(), "zwei");
  form->chk2(1).set_ticked(false);
  EXPECT_EQ(form->txtAdresBind(1).text(), "");
}

TEST_F(Start, LockedElementsFollowTheirTicksWhenUnlocked) {
  start();
  form->LockElements(true);
  EXPECT_FALSE(form->chkImport(1).enabled());
  EXPECT_FALSE(form->cmdHelp.enabled());
  form->LockElements(false);
  EXPECT_TRUE(form->chkImport(2).enabled());
  EXPECT_FALSE(form->chkAdr(2).enabled()) << "not ticked";
  EXPECT_TRUE(form->chkAdr(17).enabled()) << "follows box 7";
  EXPECT_FALSE(form->chkAdr(18).enabled());
}

TEST_F(Start, ColouringAControlThatIsNotThereIsReportedLikeAnyFault) {
  start();
  form->ObjectEnable(true, form->txtIndex, -1);
  EXPECT_NE(app->errors.last_report().find("fMain.ObjectEnable"), std::string::npos)
      << app->errors.last_report();
}

TEST_F(Start, HelpOpensThePageOfTheImportAndWaitsWhileWorkIsDone) {
  start();
  form->cmdHelp.take_user_click();
  ASSERT_EQ(machine.system.opened.size(), 1U);
  EXPECT_TRUE(machine.system.opened[0].ends_with(".example/index.php?id=800&cnt=1#imp"));
  form->lock_input(true);
  form->on_help();
  EXPECT_EQ(machine.system.opened.size(), 1U);
  form->lock_input(false);
  form->on_help();
  EXPECT_EQ(machine.system.opened.size(), 2U);
}

TEST_F(Start, WithoutABrowserTheShippedHandbookIsOffered) {
  machine.system.shell_result = 31;
  start();
  form->on_help();
  EXPECT_THAT(machine.dialogs.boxes, testing::IsEmpty()) << "nothing was installed with the tool";

  machine.files.put("C:\\Quenda\\import-hilfe\\handbuch.html", "<html>");
  machine.dialogs.answers = {MessageAnswer::kNo, MessageAnswer::kYes};
  form->on_help();
  EXPECT_THAT(machine.system.opened, testing::SizeIs(2));
  form->on_help();
  EXPECT_THAT(machine.system.opened, testing::SizeIs(4));
  EXPECT_EQ(machine.system.opened.back(), "Open C:\\Quenda\\import-hilfe\\handbuch.html");
  EXPECT_THAT(machine.dialogs.boxes, testing::SizeIs(2));
}

TEST_F(Start, EachDialogOpensTheSamePageByItsButtonAndByF1) {
  start();
  const auto press_help = [](auto&& dialog) {
    dialog.cmdHelp.take_user_click();
    dialog.on_help();
  };
  press_help(fOVWInput(*app));
  press_help(fImportItemEdit(*app));
  press_help(fImportMsg(*app));
  EXPECT_THAT(machine.system.opened, testing::SizeIs(6));
  EXPECT_THAT(machine.system.opened, testing::Each(testing::EndsWith("#imp")));
}

TEST_F(Start, TraceNamesEveryProcedure) {
  machine.files.put("C:\\Quenda\\Quendaspec.ini", "[Debug]\r\nTraceMode=1\r\n");
  machine.files.add_folder("C:\\Quenda\\log");
  start();
  form->chkFlip_Click();
  form->cmbFlipAdress_Click();
  form.reset();
  app.reset();
  const std::string trace = machine.files.content("C:\\Quenda\\log\\trace.log");
  EXPECT_NE(trace.find("2014/03/02  17:05:09  IMP v1.17  fMain.Form_Load 01\r\n"),
            std::string::npos);
  EXPECT_NE(trace.find("fMain.ShowSite 01(B:0)\r\n"), std::string::npos);
  for (const auto* name : {"LoadWindowPosition", "LoadPageOptions", "LoadSelections",
                           "chkFlip_Click", "cmbFlipAdress_Click"}) {
    EXPECT_NE(trace.find(concat("fMain.", name, " 01\r\n")), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace quenda

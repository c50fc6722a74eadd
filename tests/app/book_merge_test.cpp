#include <gtest/gtest.h>

#include <string>

#include "book/pages/fImportItemEdit.h"
#include "book/pages/fImportMsg.h"
#include "tests/shared/wizard_fixture.h"
#include "text/literal_1252.h"

// The last page: entries edited and deleted, and what becomes of the book.
namespace quenda {
namespace {

constexpr std::string_view kOldLine = "Alt;030123456;x;0;5;0;Ort;;[vcd(card)vcd]\r\n";

class LastPage : public WizardTest {
 protected:
  /// Brings "Neu;030123456" and "Huber;0897654321" to the last page.
  void enter() {
    go_to(Page::kEntries, "Name;Nummer\r\nNeu;030123456\r\nHuber;0897654321\r\n",
          {{"Name"}, {"Nummer"}});
  }
  static std::string line(std::string_view name, std::string_view number) {
    return std::string(name) + ";" + std::string(number) + ";0;0;0;0;;;[vcd()vcd]\r\n";
  }
};

TEST_F(LastPage, NothingNewLeavesTheBookAlone) {
  machine.files.put(kBookPath, line("NEU", "030123456") + line("huber", "0897654321"));
  enter();
  finish();
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "nodata", "cancel"}));
  EXPECT_EQ(machine.files.writes(kBookPath), 0);
}

TEST_F(LastPage, MissingBookIsCreated) {
  machine.files.remove(kBookPath);
  enter();
  finish();
  EXPECT_EQ(book(), line("Neu", "030123456") + line("Huber", "0897654321"));
}

TEST_F(LastPage, AsksAboutADoubleAndRefusesToBeClosedWithoutAnAnswer) {
  machine.files.put(kBookPath, kOldLine);
  enter();
  machine.events.on_modal = [&](Form& shown) {
    auto& dialog = dynamic_cast<fImportMsg&>(shown);
    EXPECT_TRUE(dialog.labMsgNumber.caption().ends_with(": 030123456"));
    EXPECT_EQ(dialog.labMsgIn.caption(), "Alt  Ort");
    EXPECT_EQ(dialog.labMsgNew.caption(), "Neu  ");
    EXPECT_EQ(dialog.labMsgNew.parts(), (std::vector<PartsLabel::Part>{{"Neu", true}, {"", true}}));
    EXPECT_EQ(dialog.labCount.caption(), "1 von 1");
    EXPECT_FALSE(dialog.unload(CloseReason::kCloseBox));
    EXPECT_TRUE(dialog.labAnswer.caption().ends_with(u8"nur für diese Rufnummer."_de));
    dialog.optAsk(1).take_user_click();
    EXPECT_TRUE(dialog.labAnswer.caption().ends_with("ohne weitere Fragen."));
    dialog.cmdMsg(1).take_user_click();
  };
  finish();
  EXPECT_TRUE(form->optAsk(1).chosen()) << "the answer for all becomes the option";
  EXPECT_EQ(book(), "Neu;030123456;x;0;5;0;;;[vcd()vcd]\r\n" + line("Huber", "0897654321"));
}

TEST_F(LastPage, AnswerOfAFailedTryDoesNotDecideTheNextOne) {
  machine.files.put(kBookPath, kOldLine);
  enter();
  int questions = 0;
  machine.events.on_modal = [&](Form& shown) {
    ++questions;
    dynamic_cast<fImportMsg&>(shown).cmdMsg(1).take_user_click();
  };
  machine.files.refuse_writing(kBookPath, kFaultDiskFull);
  forward();
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(book(), kOldLine);
  machine.files.put(kBookPath, kOldLine);
  machine.files.refuse_writing(kBookPath, 0);
  back();
  form->optAsk(2).take_user_click();
  finish();
  EXPECT_EQ(book(), std::string(kOldLine) + line("Huber", "0897654321"));
}

TEST_F(LastPage, UnansweredQuestionIsAFaultThatLeavesTheBookAlone) {
  machine.files.put(kBookPath, kOldLine);
  enter();
  forward();
  EXPECT_EQ(last_box(), "Es ist ein Fehler aufgetreten!\r\nsiehe Datei: \\log\\error.log");
  machine.dialogs.more.on_click();
  EXPECT_TRUE(last_box().starts_with("IMP v")) << "no trace log, so the report itself";
  EXPECT_TRUE(last_box().ends_with("TraceMode=1)"));
  EXPECT_EQ(form->wizard.CurrentPage, Page::kWrite);
  EXPECT_EQ(book(), kOldLine);
  EXPECT_EQ(machine.host_link.texts, Texts{"ON"});
}

TEST_F(LastPage, DoublesInsideTheBookCountAgainstNewEntries) {
  // Three lines, of which two are doubles: with two new entries no more are kept than were read.
  machine.files.put(kBookPath, line("A", "1") + line("a", "1") + line("A", "1"));
  enter();
  finish();
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "nodata", "cancel"}));
  EXPECT_EQ(machine.files.writes(kBookPath), 0);
}

TEST_F(LastPage, FaultyBookLineStopsTheImportBeforeAnythingIsWritten) {
  machine.files.put("C:\\Quenda\\Quendaspec.ini", "[Debug]\r\nTraceMode=1\r\n");
  machine.files.add_folder("C:\\Quenda\\log");
  machine.files.put(kBookPath, std::string(kOldLine) + "Kurz;0305\r\n");
  enter();
  forward();
  EXPECT_EQ(last_box(), "Es ist ein Fehler aufgetreten!\r\nsiehe Datei: \\log\\error.log");
  EXPECT_EQ(machine.files.writes(kBookPath), 0);
  EXPECT_EQ(machine.host_link.texts, Texts{"ON"});
  EXPECT_NE(app->errors.last_report().find("Params(S:Zeile 2: Kurz;0305)"), std::string::npos)
      << app->errors.last_report();
  machine.dialogs.more.on_click();
  EXPECT_EQ(machine.system.opened, Texts{"Open C:\\Quenda\\log\\trace.log"});
  EXPECT_NE(machine.files.content("C:\\Quenda\\log\\trace.log").find("!ERROR!"), std::string::npos);
  EXPECT_EQ(form->pointer(), Pointer::kDefault);
  // Once the book is mended, the same entries can be imported.
  machine.files.put(kBookPath, kOldLine);
  form->optAsk(2).take_user_click();
  back();
  EXPECT_EQ(form->cmdFor.caption(), u8"Übernehmen"_de) << "the next click writes";
  finish();
  EXPECT_EQ(book(), std::string(kOldLine) + line("Huber", "0897654321"));
}

TEST_F(LastPage, ATraceWithoutItsFolderIsNamedInsteadOfTheSwitchThatIsOn) {
  machine.files.put("C:\\Quenda\\Quendaspec.ini", "[Debug]\r\nTraceMode=1\r\n");
  machine.files.refuse_writing("C:\\Quenda\\log\\trace.log", kFaultPathNotFound);
  machine.files.put(kBookPath, "Kurz;0305\r\n");
  enter();
  forward();
  machine.dialogs.more.on_click();
  EXPECT_TRUE(
      last_box().ends_with(u8"eingeschaltet, aber diese Datei lässt sich nicht schreiben:\r\n"
                           u8"C:\\Quenda\\log\\trace.log"_de))
      << last_box();
}

TEST_F(LastPage, BookWithLineFeedsOnlyIsReadAndWrittenWithCrLf) {
  machine.files.put(kBookPath, "A;1;0;0;0;0;;;[vcd()vcd]\nB;2;0;0;0;0;;;[vcd(x\ny)vcd]\n");
  enter();
  finish();
  EXPECT_EQ(form->StatusBar.panel(3), "Telefonbuch mit LF statt CR LF gelesen");
  EXPECT_EQ(book(), line("A", "1") + "B;2;0;0;0;0;;;[vcd(x\ny)vcd]\r\n" + line("Neu", "030123456") +
                        line("Huber", "0897654321"));
}

TEST_F(LastPage, BookWithTwoEntriesInALineIsLeftAlone) {
  const std::string mixed = line("A", "1") + "B;2;0;0;0;0;;;[vcd()vcd]\n" + line("C", "3");
  machine.files.put(kBookPath, mixed);
  enter();
  forward();
  EXPECT_EQ(last_box(),
            u8"Das Telefonbuch wurde nicht geändert, weil seine Zeilen verschieden enden!\r\n"
            u8"Zeile ohne CR LF am Ende: 2"_de);
  EXPECT_EQ(book(), mixed);
  EXPECT_EQ(machine.host_link.texts, Texts{"ON"});
}

TEST_F(LastPage, BookThatCannotBeWrittenIsReported) {
  for (const int fault : {kFaultPermissionDenied, kFaultPathAccess, kFaultDiskFull}) {
    machine.files.refuse_writing(kBookPath, fault);
    enter();
    forward();
    EXPECT_EQ(last_box(), "Es ist ein Fehler aufgetreten!\r\nsiehe Datei: \\log\\error.log");
    EXPECT_EQ(machine.host_link.texts.back(), "ON");
  }
}

TEST_F(LastPage, AfterAFailedWriteTheEntriesStayWithinReach) {
  machine.files.refuse_writing(kBookPath, kFaultDiskFull);
  enter();
  forward();
  EXPECT_EQ(form->StatusBar.panel(2), "") << "nothing is being written any more";
  EXPECT_FALSE(form->cmdFor.enabled());
  for (int i = 0; i < 2; ++i) {
    form->lstImpFinal.take_user_select(0);
    form->cmdDel.take_user_click();
  }
  back();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_FALSE(form->cmdFor.enabled()) << "nothing is left to import";
}

TEST_F(LastPage, WithoutALinkTheUserIsTold) {
  enter();
  form->Form_LinkClose();
  finish();
  EXPECT_EQ(last_box(),
            u8"Es besteht keine DDE-Verbindung zu Quenda!\r\nNach dem Import ist es "
            u8"erforderlich das Telefonbuch durch \"Aktualisieren\" (F5) neu "
            u8"einzulesen!"_de);
  EXPECT_EQ(machine.host_link.texts, (Texts{"ON", "data"}));
}

TEST_F(LastPage, EditedEntryIsCleanedAndKeepsItsPlace) {
  enter();
  machine.events.on_modal = [&](Form& shown) {
    auto& dialog = dynamic_cast<fImportItemEdit&>(shown);
    EXPECT_EQ(dialog.caption(), "Quenda - Kontakte importieren");
    EXPECT_EQ(dialog.txtName.text(), "Neu");
    dialog.txtNumber.set_focus();
    EXPECT_EQ(dialog.txtNumber.selection_length(), 3) << "as long as the name";
    dialog.txtNumber.type("+ 1");
    EXPECT_EQ(dialog.txtNumber.text(), "0301234561");
    dialog.txtNumber.take_user_text("+49;301234");
    dialog.txtName.set_text("");
    dialog.txtName.type("A;B");
    dialog.txtAdress.take_user_text("Weg 1; Hof");
    dialog.cmdEdit(0).take_user_click();
  };
  form->lstImpFinal.take_user_select(0);
  form->lstImpFinal.take_user_double_click();
  EXPECT_EQ(rows(), (Texts{"A,B|0301234|Weg 1, Hof", "Huber|0897654321|"}))
      << "pasted separators do not reach the book";
  machine.events.on_modal = [](Form& shown) {
    auto& dialog = dynamic_cast<fImportItemEdit&>(shown);
    dialog.txtName.set_text("verworfen");
    dialog.cmdEdit(1).take_user_click();
  };
  form->cmdEditItems.take_user_click();
  EXPECT_EQ(rows()[0], "A,B|0301234|Weg 1, Hof");
}

TEST_F(LastPage, DeletingTheLastRowDisablesTheImport) {
  enter();
  form->lstImpFinal.take_user_select(1);
  form->lstImpFinal.take_user_key_down(46);
  EXPECT_EQ(rows(), Texts{"Neu|030123456|"});
  EXPECT_EQ(form->lstImpFinal.selected(), 0) << "the neighbour is selected";
  EXPECT_EQ(form->StatusBar.panel(3), u8"1 gültige Einträge"_de);
  form->cmdDel.take_user_click();
  EXPECT_FALSE(form->cmdDel.enabled());
  EXPECT_FALSE(form->cmdFor.enabled());
}

}  // namespace
}  // namespace quenda

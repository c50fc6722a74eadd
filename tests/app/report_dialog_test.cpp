#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "book/pages/fImportReport.h"
#include "tests/shared/wizard_fixture.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::HasSubstr;

class ReportDialog : public WizardTest {
 protected:
  ReportDialog() {
    machine.files.put(kBookPath, "Alt;0405550199;0;0;0;0;;;[vcd()vcd]\r\n");
    go_to(Page::kEntries,
          "Name;Nummer\r\nEva;030 5550301\r\nUwe;\r\nEva;030 5550301\r\nFalk;040 5550199\r\n"
          "Ida;030 5550302\r\n",
          {{"Name"}, {"Nummer"}});
    form->lstImpFinal.select(2);
    form->cmdDel.take_user_click();
  }
  /// Presses the button and acts in the dialog.
  void open(const std::function<void(fImportReport&)>& act) {
    machine.events.on_modal = [&](Form& shown) { act(dynamic_cast<fImportReport&>(shown)); };
    form->cmdReport.take_user_click();
  }
  static Texts lines(const fImportReport& dialog) {
    Texts lines;
    for (std::size_t row = 0; row < dialog.lstReport.count(); ++row) {
      std::string line;
      for (const std::size_t column : {0U, 1U, 2U, 4U, 5U}) {
        line += (line.empty() ? "" : "|") + dialog.lstReport.cell(row, column);
      }
      lines.push_back(line);
    }
    return lines;
  }
};

TEST_F(ReportDialog, TellsOfEveryNumberAndShowsTheOnesOfOneFate) {
  open([](fImportReport& dialog) {
    EXPECT_EQ(dialog.labSum.caption(),
              "5 Nummern gelesen: 1 neu, 1 R\xFC"
              "ckfrage, 1 wiederholt, 1 ohne Rufnummer, 1 entfernt.");
    EXPECT_EQ(
        lines(dialog),
        (Texts{"2|Eva|0305550301|neu|wird in das Telefonbuch aufgenommen",
               "3|Uwe||ohne Rufnummer|keine Rufnummer in der Spalte",
               "4|Eva|0305550301|wiederholt|gleicht einer anderen Zeile (Zeile 2)",
               concat("5|Falk|0405550199|R\xFC", "ckfrage|die Nummer ist unter anderem Namen ",
                      "da: Sie werden gefragt (im Telefonbuch: \"Alt\")"),
               "6|Ida|0305550302|entfernt|von Ihnen aus der Liste genommen"}));
    EXPECT_EQ(dialog.labReason.caption(), "neu: wird in das Telefonbuch aufgenommen");
    dialog.lstReport.take_user_select(1);
    EXPECT_EQ(dialog.labReason.caption(), "ohne Rufnummer: keine Rufnummer in der Spalte");
    EXPECT_EQ(dialog.cmbFate.items().at(3), "wiederholt (1)");
    dialog.cmbFate.take_user_index(3);
    EXPECT_THAT(dialog.labReason.caption(), HasSubstr("(Zeile 2)"));
    EXPECT_THAT(lines(dialog), testing::ElementsAre(HasSubstr("wiederholt")));
    dialog.lstReport.take_user_copy();
    dialog.cmdClose.take_user_click();
  });
  EXPECT_EQ(machine.dialogs.clipboard,
            "Zeile\tName\tNummer\tAdresse\tErgebnis\tGrund\r\n"
            "4\tEva\t0305550301\t\twiederholt\tgleicht einer anderen Zeile (Zeile 2)\r\n");
  EXPECT_EQ(machine.files.writes(kBookPath), 0);
}

TEST_F(ReportDialog, ADoubleClickShowsTheEntryIfThereIsOne) {
  open([](fImportReport& dialog) {
    dialog.lstReport.select(1);
    dialog.lstReport.take_user_double_click();
    EXPECT_TRUE(dialog.loaded()) << "a number that gave no entry";
    dialog.lstReport.select(3);
    dialog.lstReport.take_user_double_click();
    EXPECT_FALSE(dialog.loaded());
  });
  EXPECT_EQ(form->lstImpFinal.selected(), 1);
}

TEST_F(ReportDialog, IsSavedAsTheBatchToolWritesIt) {
  machine.dialogs.paths = {"C:\\report.csv", std::string(kContactsPath), "C:\\report.json"};
  const auto save = [](fImportReport& dialog) { dialog.cmdSave.take_user_click(); };
  open(save);
  EXPECT_THAT(machine.files.content("C:\\report.csv"),
              HasSubstr("\r\n6;5;1;Ida;0305550302;030 5550302;;entfernt;"));
  open(save);
  EXPECT_THAT(last_box(), HasSubstr(kContactsPath));
  EXPECT_THAT(machine.files.content(kContactsPath), HasSubstr("Name;Nummer")) << "the source";
  open(save);
  EXPECT_THAT(machine.files.content("C:\\report.json"),
              HasSubstr("\"dry_run\":true,\"records\":5,\"numbers\":5,\"result\":\"data\""));
  open(save);  // cancelled
  EXPECT_EQ(machine.dialogs.boxes.size(), 1U);
}

TEST_F(ReportDialog, ABookThatCannotBeReadLeavesItsRowsUnread) {
  machine.files.put(kBookPath, "no entry\r\n");
  open([](fImportReport& dialog) {
    EXPECT_THAT(lines(dialog).front(), HasSubstr("nicht gelesen"));
  });
}

}  // namespace
}  // namespace quenda

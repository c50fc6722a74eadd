#include <gtest/gtest.h>

#include <string>

#include "book/pages/fImportItemEdit.h"
#include "tests/shared/wizard_fixture.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"

// What the last page tells beforehand of each entry.
namespace quenda {
namespace {

constexpr std::string_view kBook =
    "Alt;030123456;0;0;0;0;;;[vcd()vcd]\r\n"
    "Huber;0897654321;0;0;0;0;;;[vcd()vcd]\r\n";
constexpr std::string_view kFile =
    "Name;Nummer\r\nNeu;030123456\r\nHuber;0897654321\r\nFrei;0405550199\r\n";

class Results : public WizardTest {
 protected:
  void enter(std::string_view file = kFile) { go_to(Page::kEntries, file, {{"Name"}, {"Nummer"}}); }
  void tick() { form->tmResults.take_tick(); }
  [[nodiscard]] Texts results() const {
    Texts texts;
    for (std::size_t row = 0; row < form->lstImpFinal.count(); ++row) {
      texts.push_back(form->lstImpFinal.cell(row, 3));
    }
    return texts;
  }
  /// So many that the user is heard in between.
  static std::string large_file() {
    std::string text = "Name;Nummer\r\n";
    for (int i = 0; i < 300; ++i) text += concat("Neu;0305550", std::to_string(1000 + i), "\r\n");
    return text;
  }
};

TEST_F(Results, TellWhatApplyingWillDoAndFollowTheOptions) {
  machine.files.put(kBookPath, kBook);
  enter();
  EXPECT_EQ(results(), Texts(3)) << "the page comes first";
  tick();
  EXPECT_EQ(results(), (Texts{"R\xFC"
                              "ckfrage",
                              "schon vorhanden", "neu"}));
  form->optAsk(1).take_user_click();
  tick();
  EXPECT_EQ(results(), (Texts{"ersetzt \"Alt\"", "schon vorhanden", "neu"}));
  form->optAsk(2).take_user_click();
  tick();
  EXPECT_EQ(results(), (Texts{"beh\xE4lt \"Alt\"", "schon vorhanden", "neu"}));
  EXPECT_EQ(machine.files.writes(kBookPath), 0);
}

TEST_F(Results, FollowChangesOfTheListTheCodesAndTheBook) {
  machine.files.put(kBookPath, kBook);
  enter();
  form->optAsk(2).take_user_click();
  tick();
  form->lstImpFinal.select(0);
  form->cmdDel.take_user_click();
  EXPECT_EQ(results(), (Texts{"schon vorhanden", "neu"}));
  machine.events.on_modal = [](Form& shown) {
    auto& dialog = dynamic_cast<fImportItemEdit&>(shown);
    dialog.txtNumber.take_user_text("030123456");
    dialog.cmdEdit(0).take_user_click();
  };
  form->cmdEditItems.take_user_click();
  EXPECT_EQ(results(), (Texts{"", "neu"}));
  tick();
  EXPECT_EQ(results(), (Texts{"beh\xE4lt \"Alt\"", "neu"}));
  machine.files.put(kBookPath, "Alter;0405550199;0;0;0;0;;;[vcd()vcd]\r\n");
  form->txtStateCode.take_user_text("0043");
  form->cmdCompose.take_user_click();
  tick();
  EXPECT_EQ(results(), (Texts{"neu", "neu", "beh\xE4lt \"Alter\""}));
}

TEST_F(Results, DoublesOfTheImportAndEntriesWithoutANameAreNamedAsSuch) {
  machine.files.put(kBookPath, ";030123456;0;0;0;0;;;[vcd()vcd]\r\n");
  enter("Name;Nummer\r\nNeu;030123456\r\nFrei;0405550199\r\nFrau;0405550199\r\n");
  form->optAsk(1).choose();
  tick();
  EXPECT_EQ(results(), (Texts{"ersetzt einen Eintrag ohne Namen", "doppelt", "neu"}));
}

TEST_F(Results, ALookIsGivenUpWhenTheUserGoesOn) {
  enter(large_file());
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    back();
  };
  tick();
  EXPECT_EQ(form->wizard.CurrentPage, Page::kAddresses);
  forward();
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    form->lstImpFinal.select(0);
    form->cmdDel.take_user_click();
  };
  tick();
  EXPECT_EQ(results().front(), "");
  tick();
  EXPECT_EQ(results(), Texts(299, "neu"));
  form->optAsk(1).take_user_click();
  machine.events.on_yield = [&] {
    machine.events.on_yield = nullptr;
    forward();
  };
  EXPECT_THROW(tick(), EndProgram);
  EXPECT_EQ(machine.files.writes(kBookPath), 1);
}

TEST_F(Results, SayNothingOfABookThatCannotBeRead) {
  machine.files.put(kBookPath, "no entry\r\n");
  enter();
  tick();
  machine.files.refuse_reading(kBookPath, kFaultPermissionDenied);
  form->optAsk(1).choose();
  tick();
  EXPECT_EQ(results(), Texts(3));
  EXPECT_TRUE(machine.dialogs.boxes.empty());
  EXPECT_FALSE(machine.files.has_folder("C:\\Quenda\\log"));
}

TEST_F(Results, DoubtfulNumbersAreMarked) {
  enter(
      "Name;Nummer\r\nAnna;12345678\r\nBert;\"4,93012E+11\"\r\nCarl;030 123456 / 0171 2345678\r\n"
      "Dora;+49 (30) 123-456\r\n");
  tick();
  EXPECT_EQ(results(),
            (Texts{"neu (!) ohne Vorwahl", "neu (!) Exponent", "neu (!) mehrere Nummern", "neu"}));
  form->lstImpFinal.take_user_heading(3);
  EXPECT_EQ(form->lstImpFinal.order().row_at(0), 3U);
}

TEST_F(Results, RowsSortedByThemFollowThem) {
  machine.files.put(kBookPath, kBook);
  enter();
  tick();
  form->lstImpFinal.take_user_heading(3);
  const auto seen = [&] {
    Texts texts;
    for (std::size_t at = 0; at < 3; ++at) {
      texts.push_back(results().at(form->lstImpFinal.order().row_at(at)));
    }
    return texts;
  };
  form->lstImpFinal.select(0);
  form->optAsk(2).take_user_click();
  tick();
  EXPECT_EQ(seen(), (Texts{"beh\xE4lt \"Alt\"", "neu", "schon vorhanden"}));
  form->optAsk(1).take_user_click();
  tick();
  EXPECT_EQ(seen(), (Texts{"ersetzt \"Alt\"", "neu", "schon vorhanden"}));
  form->lstImpFinal.select(1);
  form->cmdDel.take_user_click();
  tick();
  EXPECT_EQ(form->lstImpFinal.order().row_at(1), 1U);
  EXPECT_EQ(form->lstImpFinal.cell(0, 0), "Neu") << "the rows themselves keep their order";
}

}  // namespace
}  // namespace quenda

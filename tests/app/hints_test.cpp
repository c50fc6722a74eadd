#include <gtest/gtest.h>

#include <string>

#include "book/pages/fImportItemEdit.h"
#include "book/pages/fOVWInput.h"
#include "platform/controls/view.h"
#include "tests/shared/wizard_fixture.h"
#include "text/literal_1252.h"

// What the wizard says beside its work: where the next step is, what is missing, what gets lost.
namespace quenda {
namespace {

class Hints : public WizardTest {
 protected:
  void enter(bool linked = true) {
    start(linked);
    take_file("Name;Nummer\r\nNeu;030123456\r\nHuber;0897654321\r\n");
    forward();
    select(0, {"Name"});
    select(1, {"Nummer"});
    for (int i = 0; i < 3; ++i) forward();
    ASSERT_EQ(form->wizard.CurrentPage, Page::kEntries);
  }
  /// Which control asked for the focus last.
  class Focus : public ControlPeer {
   public:
    explicit Focus(Control& control) { control.attach(this); }
    void refresh(Aspect aspect) override { taken_ = taken_ || aspect == Aspect::kFocus; }
    [[nodiscard]] bool taken() const { return taken_; }

   private:
    bool taken_ = false;
  };
};

TEST_F(Hints, AfterAFileWasChosenTheFocusIsWhereTheNextStepIs) {
  start();
  {
    const Focus next(form->cmdFor);
    take_file("Name;Nummer\r\nNeu;030123456\r\n");
    EXPECT_TRUE(next.taken());
    form->cmdFor.attach(nullptr);
  }
  const Focus delimiter(form->cmbLimiter);
  take_file("Name\r\nNeu\r\n");
  EXPECT_TRUE(delimiter.taken());
  form->cmbLimiter.attach(nullptr);
}

TEST_F(Hints, AnEntryIsSavedOnlyWithNameAndNumber) {
  enter();
  machine.events.on_modal = [&](Form& shown) {
    auto& dialog = dynamic_cast<fImportItemEdit&>(shown);
    dialog.txtNumber.take_user_text("");
    dialog.cmdEdit(0).take_user_click();
    EXPECT_TRUE(dialog.loaded());
    EXPECT_EQ(dialog.labMissing.caption(), "Nummer fehlt");
    dialog.txtName.take_user_text("  ");
    dialog.cmdEdit(0).take_user_click();
    EXPECT_EQ(dialog.labMissing.caption(), "Name fehlt");
    dialog.cmdEdit(1).take_user_click();
  };
  form->cmdEditItems.take_user_click();
  EXPECT_EQ(rows(), (Texts{"Neu|030123456|", "Huber|0897654321|"}));
  EXPECT_FALSE(form->labEdited.visible());
}

TEST_F(Hints, ChangesAreSaidToGetLostUntilTheyAre) {
  enter();
  EXPECT_FALSE(form->labEdited.visible());
  form->cmdDel.take_user_click();
  EXPECT_TRUE(form->labEdited.visible());
  back();
  forward();
  EXPECT_EQ(form->lstImpFinal.count(), 2U);
  EXPECT_FALSE(form->labEdited.visible());
}

TEST_F(Hints, InASortedListTheNextRowThatIsSeenIsSelectedAfterADeletion) {
  enter();
  form->lstImpFinal.take_user_heading(0);
  form->lstImpFinal.select(1);
  form->cmdDel.take_user_click();
  EXPECT_EQ(rows(), Texts{"Neu|030123456|"});
  EXPECT_EQ(form->lstImpFinal.selected(), 0);
}

TEST_F(Hints, OtherCodesAreAppliedWithoutLeavingThePage) {
  start();
  take_file("Name;Nummer\r\nNeu;+43 1 1234567\r\n");
  forward();
  select(0, {"Name"});
  select(1, {"Nummer"});
  for (int i = 0; i < 3; ++i) forward();
  EXPECT_EQ(rows(), Texts{"Neu|004311234567|"});
  EXPECT_FALSE(form->cmdCompose.enabled());
  EXPECT_EQ(form->labCodes.caption(), u8"Sie ergänzen die Nummern."_de);
  form->txtStateCode.take_user_text("0043");
  form->cmdCompose.take_user_click();
  EXPECT_EQ(rows(), Texts{"Neu|011234567|"});
  EXPECT_EQ(form->wizard.CurrentPage, Page::kEntries);
  EXPECT_FALSE(form->cmdCompose.enabled());
  form->txtOVW.take_user_text("");
  EXPECT_EQ(form->labCodes.caption(), "(!) Ortsvorwahl fehlt");
  EXPECT_TRUE(form->cmdFor.enabled());
}

TEST_F(Hints, TheCodeThatIsWrongIsAskedForAndNothingTypedIsLost) {
  machine.files.put("C:\\Quenda\\data\\Quenda.ini", "[General]\r\nmyVWL=\r\nmyVWO=30\r\n");
  start();
  take_file("Name;Nummer\r\nNeu;030123456\r\n");
  forward();
  select(0, {"Name"});
  select(1, {"Nummer"});
  for (int i = 0; i < 2; ++i) forward();
  int asked = 0;
  machine.events.on_modal = [&](Form& shown) {
    auto& dialog = dynamic_cast<fOVWInput&>(shown);
    const Focus focus(dialog.txtLVW);
    if (dialog.on_got_focus) dialog.on_got_focus();
    EXPECT_EQ(focus.taken(), asked == 0);
    dialog.txtLVW.attach(nullptr);
    if (++asked == 1) return dialog.txtLVW.take_user_text("0043");  // and closed
    EXPECT_EQ(dialog.txtLVW.text(), "0043");
    dialog.cmdOK.take_user_click();
  };
  forward();
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(form->txtStateCode.text(), "0043");
}

TEST_F(Hints, ThePanelsTellOfThePageThatIsSeen) {
  enter();
  EXPECT_EQ(form->StatusBar.panel(3), u8"2 gültige Einträge"_de);
  back();
  EXPECT_EQ(form->StatusBar.panel(3), "Telefonbuch DDE-Verbindung: aktiv");
  EXPECT_EQ(form->StatusBar.panel(2), "");
  forward();
  machine.files.refuse_writing(kBookPath, kFaultDiskFull);
  forward();
  EXPECT_EQ(form->StatusBar.panel(2), "");
}

TEST_F(Hints, AHostThatComesAfterTheWritingHearsThatThereIsData) {
  enter(false);
  machine.dialogs.on_box = [&] { machine.host_link.events.opened(); };
  finish();
  EXPECT_EQ(machine.host_link.texts, (Texts{"data", "ON", "data"}));
}

TEST_F(Hints, ThePreviewShowsContactsOnlyAndSaysHowMany) {
  start();
  take_file("Name;Nummer\r\nNeu;030123456\r\nHuber;0897654321\r\n");
  EXPECT_EQ(form->StatusBar.panel(3), u8"3 Einträge gelesen"_de);
  forward();
  EXPECT_EQ(form->lstShow.count(), 2U);
  EXPECT_EQ(form->labShow.caption(), "Vorschau der Daten (2)");
}

}  // namespace
}  // namespace quenda

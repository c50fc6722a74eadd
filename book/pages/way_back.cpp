#include "book/pages/way_back.h"

#include "settings/app.h"
#include "support/procedure.h"
#include "wizard/shell/design.h"

namespace quenda {
namespace {

constexpr DesignRow<WayBack> kFirstPage[] = {
    {.control = control_at<&WayBack::cmdUndo>,
     .place = {0, 5010, 3300, 390},
     .tab = 10,
     .down = Anchor::kEnd},
};
constexpr DesignRow<WayBack> kLastPage[] = {
    {.control = control_at<&WayBack::chkBackup>,
     .place = {0, 5055, 4200, 300},
     .tab = 82,
     .down = Anchor::kEnd},
};

}  // namespace

WayBack::WayBack(WizardShell& shell) : shell_(shell) {
  apply_design(*this, kFirstPage, &shell_.frmImp(0));
  apply_design(*this, kLastPage, &shell_.frmImp(4));
  cmdUndo.set_visible(false);
  cmdUndo.on_click = [this] { cmdUndo_Click(); };
}

void WayBack::load_captions() {
  cmdUndo.set_caption(shell_.app.text("Import_Button_Undo"));
  chkBackup.set_caption(shell_.app.text("Import_ChkBox_Backup"));
}

void WayBack::cmdUndo_Click() {
  procedure(shell_.app.errors, "fMain.cmdUndo_Click", {}, [&] {
    if (on_undo) on_undo();
  }).or_go_on();
}

}  // namespace quenda

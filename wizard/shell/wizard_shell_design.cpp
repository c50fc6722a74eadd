#include "wizard/shell/design.h"
#include "wizard/shell/wizard_shell.h"

// Where the frames and the shell's own controls lie.
namespace quenda {
namespace {

constexpr int kWindowWidth = 10920;  // with its frame
constexpr int kPageWidth = 10440;
constexpr int kPageHeight = 5400;

constexpr Place kPage = {0, 0, kPageWidth, kPageHeight};
// The preview stands below these pages, and below the columns a border that the user can move.
constexpr Place kUpperPage = {0, 0, kPageWidth, 2430};
constexpr Place kColumnsPage = {0, 0, kPageWidth, 2355};
constexpr Place kHelpLine = {180, 420, 10260, 420};

constexpr DesignRow<WizardShell> kDesign[] = {
    {.control = control_at<&WizardShell::frmTitle>,
     .place = {0, 0, 10920, 870},
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::labTitle>,
     .place = {180, 90, 10260, 330},
     .frame = control_at<&WizardShell::frmTitle>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::labHelp, 1>,
     .place = kHelpLine,
     .caption = "Import_Label_Help1",
     .frame = control_at<&WizardShell::frmTitle>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::labHelp, 2>,
     .place = kHelpLine,
     .caption = "Import_Label_Help2",
     .frame = control_at<&WizardShell::frmTitle>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::labHelp, 3>,
     .place = kHelpLine,
     .caption = "Import_Label_Help3",
     .frame = control_at<&WizardShell::frmTitle>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::labHelp, 4>,
     .place = kHelpLine,
     .caption = "Import_Label_Help4",
     .frame = control_at<&WizardShell::frmTitle>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::labHelp, 5>,
     .place = kHelpLine,
     .caption = "Import_Label_Help5",
     .frame = control_at<&WizardShell::frmTitle>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::labHelp, 6>,
     .place = kHelpLine,
     .caption = "Import_Label_Help6",
     .frame = control_at<&WizardShell::frmTitle>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::frmPages>,
     .place = {120, 1020, kPageWidth, kPageHeight},
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&WizardShell::frmImp, 0>,
     .place = kPage,
     .frame = control_at<&WizardShell::frmPages>,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&WizardShell::frmImp, 1>,
     .place = kColumnsPage,
     .frame = control_at<&WizardShell::frmPages>,
     .across = Anchor::kBoth,
     .down = Anchor::kShare},
    {.control = control_at<&WizardShell::frmImp, 2>,
     .place = kUpperPage,
     .frame = control_at<&WizardShell::frmPages>,
     .across = Anchor::kBoth},
    {.control = control_at<&WizardShell::frmImp, 3>,
     .place = kPage,
     .frame = control_at<&WizardShell::frmPages>,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&WizardShell::frmImp, 4>,
     .place = kPage,
     .frame = control_at<&WizardShell::frmPages>,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&WizardShell::frmImpOL>,
     .place = kPage,
     .frame = control_at<&WizardShell::frmPages>,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&WizardShell::PicProgress>,
     .place = {120, 6510, kPageWidth, 270},
     .across = Anchor::kBoth,
     .down = Anchor::kEnd},
    {.control = control_at<&WizardShell::cmdBack>,
     .place = {5820, 6900, 1500, 390},
     .tab = 200,
     .caption = "Button_Prev",
     .across = Anchor::kEnd,
     .down = Anchor::kEnd},
    {.control = control_at<&WizardShell::cmdFor>,
     .place = {7440, 6900, 1500, 390},
     .tab = 201,
     .across = Anchor::kEnd,
     .down = Anchor::kEnd},
    {.control = control_at<&WizardShell::cmdCancel>,
     .place = {9060, 6900, 1500, 390},
     .tab = 202,
     .caption = "Button_Cancel",
     .across = Anchor::kEnd,
     .down = Anchor::kEnd},
    {.control = control_at<&WizardShell::cmdHelp>,
     .place = {120, 6900, 1500, 390},
     .tab = 203,
     .caption = "Button_Help",
     .down = Anchor::kEnd},
    {.control = control_at<&WizardShell::StatusBar>, .place = {0, 7350, kWindowWidth, 330}},
};

}  // namespace

void WizardShell::design() {
  apply_design(*this, kDesign);
  set_caption("Quenda - Import");
  const Place& cancel = cmdCancel.place();
  set_place({500, 500, 0, cancel.top + cancel.height + StatusBar.place().height + 60});
  set_outer_width(kWindowWidth);
  set_resizable(true);
  labTitle.set_heading(true);
  labTitle.set_announced();
  frmTitle.set_back_color(BackColor::kWindow);
  txtDDE.set_visible(false);
  PicProgress.set_visible(false);
  default_button = &cmdFor;
  cancel_button = &cmdCancel;
}

void WizardShell::load_shell_captions() { load_captions(*this, kDesign, app); }

}  // namespace quenda

#include "wizard/shell/wizard_shell.h"

#include <string>

#include "platform/controls/events.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/text.h"
#include "wizard/shell/help.h"
#include "wizard/shell/modProgress.h"

namespace quenda {
namespace {

constexpr std::size_t kOutlookPlace = 5;  // behind the pages 0 to 4

/// Titles of the pages, the Outlook page last.
constexpr std::array<TextKey, 6> kTitles = {
    "Import_Label_Contacts",         "Import_Label_OverviewData", "Import_Label_NameInfo",
    "Import_Label_FormattingOutput", "Import_Label_ImportedData", "Import_Button_ImportOutlook"};

}  // namespace

WizardPage::WizardPage(WizardShell& shell) : shell_(shell), app_(shell.app) {}

WizardShell::WizardShell(App& services) : Form("fMain"), app(services) {
  design();
  on_help = [this] { cmdHelp.take_user_click(); };
  cmdHelp.on_click = [this] { cmdHelp_Click(); };
  cmdBack.on_click = [this] { cmdBack_Click(); };
  cmdCancel.set_always_usable();
}

void WizardShell::cmdHelp_Click() {
  procedure(app.errors, "fMain.cmdHelp_Click", {}, [&] { open_help(app); }).or_go_on();
}

void WizardShell::ObjectEnable(bool enabled, Control& control) {
  colour(enabled, control.name(), control.index(), [&]() -> Control& { return control; });
}

void WizardShell::colour(bool enabled, std::string_view name, int index,
                         const std::function<Control&()>& find) {
  procedure(app.errors, "fMain.ObjectEnable", {enabled, name, index}, [&] {
    find().set_back_color(enabled ? BackColor::kWindow : BackColor::kButtonFace);
  }).or_go_on();
}

void WizardShell::hide_pages() {
  const auto hide = [](Frame& frame) {
    frame.move_to(0, 0);
    frame.set_enabled(false);
    frame.set_visible(false);
  };
  for (const auto& frame : frmImp) hide(*frame);
  hide(frmImpOL);
  wizard.on_outlook_page = false;
}

void WizardShell::ShowSite(bool hide_only) {
  procedure(app.errors, "fMain.ShowSite", {hide_only}, [&] {
    hide_pages();
    if (hide_only || wizard.CurrentPage > Page::kEntries) return;
    const int place = static_cast<int>(wizard.CurrentPage);
    Frame& page = frmImp(place);
    page.set_enabled(true);
    page.set_visible(true);
    for (WizardPage* told : pages_) {
      if (told != nullptr) told->page_shown(wizard.CurrentPage);
    }
    show_title(static_cast<std::size_t>(place));
  }).or_go_on();
}

/// In place of the wizard's page, not only before it: keys must not lead to what is covered.
void WizardShell::show_outlook_page() {
  hide_pages();
  wizard.on_outlook_page = true;
  frmImpOL.set_enabled(true);
  frmImpOL.set_visible(true);
  frmImpOL.bring_to_front();
  show_title(kOutlookPlace);
}

void WizardShell::show_title(std::size_t place) {
  labTitle.set_caption(app.text(kTitles.at(place)));
  for (const auto& help : labHelp) help->set_visible(help->index() == static_cast<int>(place) + 1);
}

void WizardShell::begin_step() {
  way_on_open_ = false;
  show_buttons();
}

void WizardShell::refresh_buttons() {
  way_on_open_ = true;
  show_buttons();
}

void WizardShell::lock_way_back(bool locked) {
  way_back_locked_ = locked;
  show_buttons();
}

const WizardPage* WizardShell::current_page() const {
  if (wizard.on_outlook_page) return outlook_page_;
  const auto place = static_cast<std::size_t>(wizard.CurrentPage);
  return place < pages_.size() ? pages_[place] : nullptr;
}

void WizardShell::show_buttons() {
  const WizardPage* const page = current_page();
  const bool at_start = wizard.CurrentPage == Page::kSource && !wizard.on_outlook_page;
  const bool last = wizard.CurrentPage >= Page::kEntries;
  cmdFor.set_enabled(way_on_open_ && page != nullptr && page->can_go_on());
  cmdFor.set_caption(last ? app.shared_texts.Button_Resume : app.shared_texts.Button_Next);
  cmdBack.set_enabled(!at_start && !way_back_locked_);
}

void WizardShell::show_step(std::size_t done, std::size_t total) {
  if (wizard.abort) throw EndProgram();
  modProgress_Show(PicProgress, static_cast<std::int64_t>(done), 1,
                   static_cast<std::int64_t>(total));
  answer_events();
}

void WizardShell::answer_events() {
  app.machine.events.yield();
  if (wizard.abort) throw EndProgram();
}

void WizardShell::clear_panels() {
  for (const int panel : {1, 2, 3}) StatusBar.set_panel(panel, "");
}

void WizardShell::show_counts(std::size_t count, std::string_view text) {
  StatusBar.set_panel(3, concat(std::to_string(count), " ", text));
}

}  // namespace quenda

#include <string>

#include "app/fMain.h"
#include "platform/controls/events.h"
#include "platform/host_link.h"
#include "platform/system.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "support/shell.h"
#include "text/characters.h"
#include "text/text.h"
#include "wizard/shell/modProgress.h"

namespace quenda {
namespace {

/// Whether a control is there to be changed: no label, and no field that only shows.
bool changeable(const Control& control) {
  if (control.kind() == ControlKind::kTextBox) {
    return !static_cast<const TextBox&>(control).locked();
  }
  return control.kind() != ControlKind::kLabel;
}

}  // namespace

fMain::fMain(App& app) : Form("fMain"), app_(app), outlook_(app.errors, app.machine.automation) {
  design();
  connect();
}

fMain::~fMain() = default;

void fMain::Form_Load() {
  if (!app_.start()) throw EndProgram();
  procedure(app_.errors, "fMain.Form_Load", {}, [&] {
    set_caption(concat("Quenda - ", app_.environment.program_code, " v", app_.version()));
    wizard.loading = true;
    Language();
    load_general_values(app_.ini, app_.settings);
    app_.language.log_maximum = app_.settings.log_count;
    LoadWindowPosition();
    LoadPageOptions();
    load_selections(app_.ini, app_.settings);
    wizard.loading = false;
    for (const int panel : {1, 2, 3}) StatusBar.set_panel(panel, "");
    wizard.CurrentPage = kFirstPage;
    cmdFor.set_enabled(false);
    cmdBack.set_enabled(false);
    cmdOutlook.set_enabled(false);
    ShowSite();
    cmbLimiter.set_items({"Semikolon", "Komma", "Tabulator"});
    txtStateCode.set_text(concat("00", app_.settings.own_country_code));
    txtOVW.set_text(concat("0", app_.settings.own_area_code));
    tmOLcheck.set_enabled(true);
    StatusBar.set_panel(2, texts.outlook_search);
    entries_.clear();
    app_.machine.host_link.offer(
        "book", "txtDDE",
        {[this] { Form_LinkOpen(); }, [this] { Form_LinkClose(); }, [this] { Form_LinkError(); }});
  }).or_go_on();
}

void fMain::Form_LinkOpen() {
  procedure(app_.errors, "fMain.Form_LinkOpen", {}, [&] {
    wizard.link_open = true;
    txtDDE.set_text("ON");
    StatusBar.set_panel(3, texts.dde_active);
  }).or_go_on();
}

void fMain::Form_LinkClose() {
  procedure(app_.errors, "fMain.Form_LinkClose", {}, [&] {
    wizard.link_open = false;
    StatusBar.set_panel(3, texts.dde_exit);
  }).or_go_on();
}

void fMain::Form_LinkError() {
  procedure(app_.errors, "fMain.Form_LinkError", {}, [&] {
    wizard.link_open = false;
    StatusBar.set_panel(3, texts.dde_break);
  }).or_go_on();
}

void fMain::Form_Unload() {
  procedure(app_.errors, "fMain.Form_Unload", {}, [&] {
    if (txtDDE.text() != "data") txtDDE.set_text("cancel");
    wizard.abort = true;
    SaveWindowPosition();
    app_.machine.host_link.shut_down();
  }).or_go_on();
  throw EndProgram();
}

void fMain::Form_GotFocus() {
  procedure(app_.errors, "fMain.Form_GotFocus", {}, [&] {
    // The first control of the page that the user can change; while the page has none, its way on.
    Control* first = nullptr;
    for (Control* control : controls()) {
      const bool on_page = control->parent() != nullptr && control->tab_index() >= 0;
      if (!on_page || !control->reachable() || !changeable(*control)) continue;
      if (first == nullptr || control->tab_index() < first->tab_index()) first = control;
    }
    if (first == nullptr && cmdFor.reachable()) first = &cmdFor;
    if (first != nullptr) first->set_focus();
  }).or_go_on();
}

void fMain::cmdCancel_Click() {
  procedure(app_.errors, "fMain.cmdCancel_Click", {}, [&] {
    wizard.abort = true;
    unload();
  }).or_go_on();
}

void fMain::cmdHelp_Click() {
  procedure(app_.errors, "fMain.cmdHelp_Click", {}, [&] {
    modImport::ShellEx(app_.errors, app_.machine.system, "Open", kHelpPage, "", "");
  }).or_go_on();
}

void fMain::txtImport_Change() {
  procedure(app_.errors, "fMain.txtImport_Change", {}, [&] { DataView(); }).or_go_on();
}

void fMain::txtImport_KeyPress(std::int16_t& code) {
  procedure(app_.errors, "fMain.txtImport_KeyPress", {code}, [&] {
    code = filter_key(code, KeyFilter::kNoSem);
  }).or_go_on();
}

void fMain::txtIndex_KeyPress(std::int16_t& code) {
  procedure(app_.errors, "fMain.txtIndex_KeyPress", {code}, [&] {
    code = filter_key(code, KeyFilter::kNoSem);
  }).or_go_on();
}

void fMain::step(std::size_t done, std::size_t total) {
  // A record takes well under a microsecond: to look at the clock for each would cost more than the
  // work itself. The wish to end is seen at once.
  constexpr unsigned kStepsPerLook = 64;
  if (wizard.abort) throw EndProgram();
  if (++steps_ % kStepsPerLook != 0 && done < total) return;
  modProgress_Show(PicProgress, static_cast<std::int64_t>(done), 1,
                   static_cast<std::int64_t>(total));
  answer_events();
}

void fMain::answer_events() {
  app_.machine.events.yield();
  if (wizard.abort) throw EndProgram();
}

void fMain::show_counts(std::size_t count, std::string_view text) {
  StatusBar.set_panel(3, concat(std::to_string(count), " ", text));
}

}  // namespace quenda

#include <string>

#include "app/fMain.h"
#include "platform/host_link.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"

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

fMain::fMain(App& services)
    : WizardShell(services),
      SourcePage(static_cast<WizardShell&>(*this)),
      ColumnPage(static_cast<WizardShell&>(*this)),
      NamePage(static_cast<WizardShell&>(*this), static_cast<ColumnPage&>(*this)),
      AddressPage(static_cast<WizardShell&>(*this), static_cast<ColumnPage&>(*this)),
      EntryPage(static_cast<WizardShell&>(*this)),
      OutlookPage(static_cast<WizardShell&>(*this), static_cast<SourcePage&>(*this)),
      EntryHints(static_cast<WizardShell&>(*this), static_cast<EntryPage&>(*this)),
      WayBack(static_cast<WizardShell&>(*this)),
      EntryResults(static_cast<WizardShell&>(*this), static_cast<EntryPage&>(*this)),
      app_(services) {
  for (Control* control : {static_cast<Control*>(&labFacts), static_cast<Control*>(&chkConvert),
                           static_cast<Control*>(&labTable), static_cast<Control*>(&cmdSuggest),
                           static_cast<Control*>(&chkBackup), static_cast<Control*>(&cmdUndo),
                           static_cast<Control*>(&splPreview), static_cast<Control*>(&tmResults),
                           static_cast<Control*>(&cmdReport)}) {
    move_to_end(*control);
  }
  connect();
}

fMain::~fMain() = default;

void fMain::connect() {
  cmdFor.on_click = [this] { cmdFor_Click(); };
  on_compose = [this] { compose_again(); };
  EntryResults::number_in_source = [this](std::size_t row) { return number_of_source(row); };
  on_report = [this] { show_report(); };
  on_undo = [this] { ask_and_take_back(); };
  cmdCancel.on_click = [this] { cmdCancel_Click(); };
  on_suggestion = [this](const ColumnSuggestion& suggestion) { adopt(suggestion); };
  on_remembered = [this](const HeaderChoice& choice) { adopt(choice); };
  on_unload = [this] { Form_Unload(); };
  on_got_focus = [this] { Form_GotFocus(); };
  txtDDE.on_change = [this] { app_.machine.host_link.set_text(txtDDE.text()); };
}

void fMain::Form_Load() {
  if (!app_.start()) throw EndProgram();
  procedure(app_.errors, "fMain.Form_Load", {}, [&] {
    set_caption(concat(caption(), " v", app_.version()));
    wizard.loading = true;
    Language();
    load_general_values(app_.ini, app_.settings);
    app_.language.log_maximum = app_.settings.log_count;
    LoadWindowPosition();
    LoadPageOptions();
    LoadSelections();
    wizard.loading = false;
    clear_panels();
    wizard.CurrentPage = Page::kSource;
    ShowSite();
    refresh_buttons();
    open_choice(true);
    show_way_back();
    cmbLimiter.set_items({"Semikolon", "Komma", "Tabulator"});
    txtStateCode.set_text(app_.settings.dialled_country_code());
    txtOVW.set_text(app_.settings.dialled_area_code());
    start_outlook_search();
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
    StatusBar.set_panel(3, texts["Import_Info_DDEactive"]);
  }).or_go_on();
}

void fMain::Form_LinkClose() {
  procedure(app_.errors, "fMain.Form_LinkClose", {}, [&] {
    wizard.link_open = false;
    StatusBar.set_panel(3, texts["Import_Info_DDEexit"]);
  }).or_go_on();
}

void fMain::Form_LinkError() {
  procedure(app_.errors, "fMain.Form_LinkError", {}, [&] {
    wizard.link_open = false;
    StatusBar.set_panel(3, texts["Import_Info_DDEbreak"]);
  }).or_go_on();
}

void fMain::Form_Unload() {
  procedure(app_.errors, "fMain.Form_Unload", {}, [&] {
    // A host that came after the writing has heard "ON" only: it must not be told that nothing
    // happened.
    if (txtDDE.text() != "data") txtDDE.set_text(book_written_ ? "data" : "cancel");
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

void fMain::Language() {
  procedure(app_.errors, "fMain.Language", {}, [&] {
    set_caption(concat("Quenda - ", app_.text("Import_Title")));
    set_row_pattern(app_.text("Import_Label_RowOf"));
    texts.load(app_.language);
    load_shell_captions();
    SourcePage::load_captions();
    ColumnPage::load_captions();
    NamePage::load_captions();
    AddressPage::load_captions();
    EntryPage::load_captions();
    OutlookPage::load_captions();
    EntryHints::load_captions();
    WayBack::load_captions();
    EntryResults::load_captions();
  }).or_go_on();
}

}  // namespace quenda

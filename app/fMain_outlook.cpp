#include <string>
#include <vector>

#include "app/busy.h"
#include "app/fMain.h"
#include "platform/controls/events.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/shell/modProgress.h"

namespace quenda {

bool fMain::outlook_importable() const {
  return outlook_.installed() && outlook_.contact_count() > 0;
}

void fMain::tmOLcheck_Timer() {
  procedure(app_.errors, "fMain.tmOLcheck_Timer", {}, [&] {
    tmOLcheck.set_enabled(false);
    outlook_.isOutlookInstalled(true);
    const bool installed = outlook_.installed();
    labOLhint.set_visible(!installed);
    cmdOutlook.set_enabled(outlook_importable() && txtImpFile.enabled());
    std::string label = texts.outlook_not_inst;
    std::string result = texts.outlook_not_inst;
    if (installed) {
      label = concat(outlook_.version_name(), "  v", outlook_.major_version());
      if (outlook_.contact_count() == 0) label.append(" ").append(texts.data_not_found);
      result = concat(std::to_string(outlook_.contact_count()), " ", texts.contacts_found);
    }
    labOLver.set_caption(label);
    // Outlook may take its time to answer; what a file taken meanwhile has to say is worth more.
    if (StatusBar.panel(2) == texts.outlook_search) StatusBar.set_panel(2, result);
  }).or_go_on();
}

void fMain::cmdOutlook_Click() {
  procedure(app_.errors, "fMain.cmdOutlook_Click", {}, [&] {
    txtImpFile.set_text("");
    StatusBar.set_panel(1, "Importmode: Outlook");
    if (!outlook_.installed()) return;
    lstImport.clear();
    cmdBack.set_enabled(true);
    ShowSite();
    show_outlook_page();
    // A file taken before is no longer the source: its cleaning would lock the choice of source.
    source.IsISpyFile = false;
    source.FileChecked = false;
    source.IsOutlookSource = true;
    Import();
    cmdFor.set_enabled(lstImport.count() > 0);
  }).or_go_on();
}

/// In place of the wizard's page, not only before it: keys must not lead to what is covered.
void fMain::show_outlook_page() {
  hide_pages();
  frmImpOL.set_enabled(true);
  frmImpOL.set_visible(true);
  frmImpOL.bring_to_front();
  show_title(kOutlookTitle);
}

void fMain::Import() {
  bool came_through = false;
  procedure(app_.errors, "fMain.Import", {}, [&] {
    const BusyWork busy(*this);
    LockElements(true);
    StatusBar.set_panel(2, texts.items_recycle);
    contacts_.clear();
    std::vector<OutlookContact> contacts;
    const bool read =
        outlook_.getContactsAll(contacts, [this](std::size_t done, std::size_t total) {
          modProgress_Show(PicProgress, static_cast<std::int64_t>(done), 1,
                           static_cast<std::int64_t>(total));
          app_.machine.events.yield();
          return !wizard.abort;
        });
    if (!read) return;
    for (std::size_t i = 0; i < contacts.size(); ++i) {
      add_contact(contacts_, contacts[i]);
      step(i + 1, contacts.size());
    }
    StatusBar.set_panel(2, concat(std::to_string(contacts.size()), " ", texts.contacts_found));
    came_through = true;
  }).or_go_on();
  if (!came_through) {
    // Half of the contacts would look like all of them: the user gets none and is told.
    contacts_.clear();
    StatusBar.set_panel(2, concat("Outlook: ", texts.import_not_available));
  }
  LockElements(false);
  DataView();
}

void fMain::DataView() {
  procedure(app_.errors, "fMain.DataView", {}, [&] {
    OutlookChoice choice;
    choice.flip_name = chkFlipName.ticked();
    choice.flip_address = chkFlipAdress.ticked();
    for (const auto& box : chkImport) {
      const int kind = box->index();
      const bool two = has_two_addresses(static_cast<std::size_t>(kind));
      choice.kinds.at(static_cast<std::size_t>(kind)) = {box->ticked(), chkAdr(kind).ticked(),
                                                         two && chkAdr(kind + 10).ticked(),
                                                         txtImport(kind).text()};
    }
    lstImport.set_table(preview_rows(contacts_, choice));
    show_counts(lstImport.count(), texts.items_for_import);
    // Ticking a kind that has numbers opens the way on again.
    if (frmImpOL.visible()) cmdFor.set_enabled(lstImport.count() > 0);
  }).or_go_on();
}

void fMain::chkImport_Click(int index) {
  procedure(app_.errors, "fMain.chkImport_Click", {index}, [&] {
    if (wizard.loading) return;
    LockElements(false);
    DataView();
  }).or_go_on();
}

void fMain::chkAdr_Click(int index) {
  procedure(app_.errors, "fMain.chkAdr_Click", {index}, [&] {
    if (!wizard.loading) DataView();
  }).or_go_on();
}

}  // namespace quenda

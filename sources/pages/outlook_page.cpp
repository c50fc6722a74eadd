#include "sources/pages/outlook_page.h"

#include <string>
#include <vector>

#include "platform/controls/events.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/fault.h"
#include "text/text.h"
#include "wizard/shell/busy.h"
#include "wizard/shell/modProgress.h"
#include "wizard/shell/pasted_text.h"

namespace quenda {
namespace {

/// The tick that stands at a position (from 1) of a text of digits; faults where there is none.
int tick_at(std::string_view digits, std::size_t position) {
  if (position > digits.size() || !is_digit(digits[position - 1])) raise_fault(kFaultTypeMismatch);
  return digits[position - 1] - '0';
}

/// Which box a character beyond the eleventh of the address text belongs to.
struct ExtraAddressBox {
  std::size_t position;
  int box;
};
constexpr ExtraAddressBox kExtraAddressBoxes[] = {{12, 17}, {13, 18}, {14, 21}};

char tick_digit(const CheckBox& box) { return box.ticked() ? '1' : '0'; }

}  // namespace

OutlookPage::OutlookPage(WizardShell& shell, SourcePage& source_page)
    : WizardPage(shell), source_page_(source_page) {
  shell_.set_outlook_page(*this);
  design();
  connect();
}

void OutlookPage::connect() {
  source_page_.cmdOutlook.on_click = [this] { cmdOutlook_Click(); };
  for (const auto& box : chkImport) {
    box->on_click = [this, index = box->index()] { chkImport_Click(index); };
  }
  for (const auto& box : chkAdr) {
    box->on_click = [this, index = box->index()] { chkAdr_Click(index); };
  }
  chkFlipName.on_click = [this] { flip_Click("fMain.chkFlipName_Click"); };
  chkFlipAdress.on_click = [this] { flip_Click("fMain.chkFlipAdress_Click"); };
  for (const auto& box : txtImport) {
    box->on_change = [this, &box = *box] {
      keep_separators_out(box);
      txtImport_Change();
    };
    box->on_key_press = [this](std::int16_t& code) { txtImport_KeyPress(code); };
  }
}

void OutlookPage::load(const ImportSettings& settings) {
  skip_faults({[&] { chkFlipName.set_value(settings.ol_name_flip); },
               [&] { chkFlipAdress.set_value(settings.ol_address_flip); }});
  // Characters without a box, and boxes without a character, are left out.
  for (std::size_t i = 1; i <= settings.ol_number.size(); ++i) {
    skip_faults(
        {[&] { chkImport(static_cast<int>(i)).set_value(tick_at(settings.ol_number, i)); }});
  }
  // There is no box 12: that character feeds box 17 only.
  for (std::size_t i = 1; i <= kNumberKinds + 1; ++i) {
    skip_faults({[&] { chkAdr(static_cast<int>(i)).set_value(tick_at(settings.ol_adress, i)); }});
  }
  for (const auto& extra : kExtraAddressBoxes) {
    skip_faults(
        {[&] { chkAdr(extra.box).set_value(tick_at(settings.ol_adress, extra.position)); }});
  }
}

void OutlookPage::save(ImportSettings& settings) const {
  settings.ol_name_flip = chkFlipName.value();
  settings.ol_address_flip = chkFlipAdress.value();
  settings.ol_number.clear();
  settings.ol_adress.clear();
  for (const auto& box : chkImport) settings.ol_number += tick_digit(*box);
  for (const auto& box : chkAdr) settings.ol_adress += tick_digit(*box);
  for (const auto& box : txtImport) {
    settings.ol_name_ext.at(static_cast<std::size_t>(box->index() - 1)) = box->text();
  }
}

void OutlookPage::cmdOutlook_Click() {
  procedure(app_.errors, "fMain.cmdOutlook_Click", {}, [&] {
    source_page_.txtImpFile.set_text("");
    shell_.StatusBar.set_panel(1, "Importmode: Outlook");
    if (!source_page_.outlook.installed()) return;
    lstImport.clear();
    shell_.ShowSite();
    shell_.show_outlook_page();
    // A file taken before is no longer the source: its cleaning would lock the choice of source.
    shell_.source.IsISpyFile = false;
    shell_.source.FileChecked = false;
    shell_.source.IsOutlookSource = true;
    Import();
    shell_.refresh_buttons();
  }).or_go_on();
}

void OutlookPage::Import() {
  contacts_read_ = false;
  const bool came_through =
      procedure(app_.errors, "fMain.Import", {}, [&] { contacts_read_ = read_contacts(); });
  contacts_read_ = contacts_read_ && came_through;
  if (!contacts_read_) {
    // Half of the contacts would look like all of them: the user gets none and is told.
    contacts_.clear();
    shell_.StatusBar.set_panel(2,
                               concat("Outlook: ", shell_.texts["Import_Info_ImportNotAvailable"]));
  }
  LockElements(false);
  DataView();
}

bool OutlookPage::read_contacts() {
  const BusyWork busy(shell_);
  LockElements(true);
  shell_.StatusBar.set_panel(2, shell_.texts["Import_Info_ItemsRecycle"]);
  contacts_.clear();
  std::vector<OutlookContact> contacts;
  const bool read = source_page_.outlook.getContactsAll(
      contacts,
      [this](std::size_t done, std::size_t total) {
        modProgress_Show(shell_.PicProgress, static_cast<std::int64_t>(done), 1,
                         static_cast<std::int64_t>(total));
      },
      [this] {
        app_.machine.events.yield();
        return !shell_.wizard.abort;
      });
  if (!read) return false;
  for (std::size_t i = 0; i < contacts.size(); ++i) {
    add_contact(contacts_, contacts[i]);
    shell_.step(i + 1, contacts.size());
  }
  shell_.StatusBar.set_panel(
      2, concat(std::to_string(contacts.size()), " ", shell_.texts["Import_Info_ContactsFound"]));
  return true;
}

OutlookChoice OutlookPage::choice() const {
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
  return choice;
}

void OutlookPage::DataView() {
  procedure(app_.errors, "fMain.DataView", {}, [&] {
    lstImport.set_table(preview_rows(contacts_, choice()));
    shell_.show_counts(lstImport.count(), shell_.texts["Import_Info_ItemsForImport"]);
    // Ticking a kind that has numbers opens the way on again.
    if (shell_.wizard.on_outlook_page) shell_.refresh_buttons();
  }).or_go_on();
}

void OutlookPage::chkImport_Click(int index) {
  procedure(app_.errors, "fMain.chkImport_Click", {index}, [&] {
    if (shell_.wizard.loading) return;
    LockElements(false);
    DataView();
  }).or_go_on();
}

void OutlookPage::chkAdr_Click(int index) {
  procedure(app_.errors, "fMain.chkAdr_Click", {index}, [&] {
    if (!shell_.wizard.loading) DataView();
  }).or_go_on();
}

void OutlookPage::flip_Click(std::string_view name) {
  procedure(app_.errors, name, {}, [&] {
    if (!shell_.wizard.loading) DataView();
  }).or_go_on();
}

void OutlookPage::txtImport_Change() {
  procedure(app_.errors, "fMain.txtImport_Change", {}, [&] { DataView(); }).or_go_on();
}

void OutlookPage::txtImport_KeyPress(std::int16_t& code) {
  procedure(app_.errors, "fMain.txtImport_KeyPress", {code}, [&] {
    code = filter_key(code, KeyFilter::kNoSem);
  }).or_go_on();
}

void OutlookPage::LockElements(bool lock) {
  procedure(app_.errors, "fMain.LockElements", {lock}, [&] {
    shell_.lock_way_back(lock);
    for (Control* control :
         {static_cast<Control*>(&shell_.cmdHelp), static_cast<Control*>(&chkFlipName),
          static_cast<Control*>(&chkFlipAdress)}) {
      control->set_enabled(!lock);
    }
    for (const auto& box : chkImport) {
      const int kind = box->index();
      const bool ticked = !lock && box->ticked();
      box->set_enabled(!lock);
      chkAdr(kind).set_enabled(ticked);
      txtImport(kind).set_enabled(ticked);
      shell_.ObjectEnable(ticked, txtImport(kind));
      if (has_two_addresses(static_cast<std::size_t>(kind))) chkAdr(kind + 10).set_enabled(ticked);
    }
  }).or_go_on();
}

}  // namespace quenda

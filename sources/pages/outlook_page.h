#pragma once

#include <cstdint>

#include "platform/controls/control_array.h"
#include "platform/controls/list_view.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "settings/import_settings.h"
#include "sources/outlook_contacts.h"
#include "sources/pages/source_page.h"
#include "wizard/shell/wizard_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// The contacts of Outlook: which numbers and addresses are taken, and what becomes of them.
class OutlookPage : public WizardPage {
 public:
  OutlookPage(WizardShell& shell, SourcePage& source_page);

  /// The choice gives entries.
  [[nodiscard]] bool can_go_on() const override { return lstImport.count() > 0; }
  void load_captions();
  void load(const ImportSettings& settings);
  void save(ImportSettings& settings) const;

  void cmdOutlook_Click();
  void Import();
  void DataView();
  void chkImport_Click(int index);
  void chkAdr_Click(int index);
  void txtImport_Change();
  void txtImport_KeyPress(std::int16_t& code);
  /// Says which controls can be used while contacts are read, and after. `lock_input` of the form
  /// keeps keys and clicks out meanwhile; this is what the user sees of it.
  void LockElements(bool lock);
  /// Whether the contacts could be read the last time.
  [[nodiscard]] bool contacts_read() const { return contacts_read_; }
  [[nodiscard]] const ContactTable& contacts() const { return contacts_; }
  /// What the user has ticked and typed for each kind of number.
  [[nodiscard]] OutlookChoice choice() const;

  ControlArray<Label> labImport{shell_, "labImport", {0, 1, 2}};
  ControlArray<CheckBox> chkImport{shell_, "chkImport", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<TextBox> txtImport{shell_, "txtImport", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}};
  ControlArray<CheckBox> chkAdr{shell_, "chkAdr", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17, 18, 21}};
  CheckBox chkFlipName{shell_, "chkFlipName"};
  CheckBox chkFlipAdress{shell_, "chkFlipAdress"};
  Label labPreview{shell_, "labPreview"};
  ListView lstImport{shell_, "lstImport"};

 private:
  void design();
  void connect();
  void name_number_kinds();
  void flip_Click(std::string_view name);
  bool read_contacts();

  SourcePage& source_page_;
  ContactTable contacts_;
  bool contacts_read_ = false;
};

}  // namespace quenda

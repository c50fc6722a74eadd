#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/controls/control_array.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "settings/import_settings.h"
#include "wizard/composition.h"
#include "wizard/pages/column_page.h"
#include "wizard/shell/wizard_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// The third page: the order of the names, and what each number adds to the name.
class NamePage : public WizardPage {
 public:
  NamePage(WizardShell& shell, const ColumnPage& columns);

  /// The chosen columns are shown.
  [[nodiscard]] bool can_go_on() const override { return filled_; }
  void load_captions();
  /// A suffix that is not in the settings keeps the text that stands in its box.
  void offer_suffixes(ImportSettings& settings) const;
  void load(const ImportSettings& settings);
  void save(ImportSettings& settings) const;

  void HeaderFillName();
  void chkFlip_Click();
  void pClearName();
  void txtIndex_KeyPress(std::int16_t& code);

  [[nodiscard]] std::array<std::string, kNumberRows> suffixes() const;

  Label labHeadName{shell_, "labHeadName"};
  TextBox txtHeadName{shell_, "txtHeadName"};
  CheckBox chkFlip{shell_, "chkFlip"};
  Label labHeadNumber{shell_, "labHeadNumber"};
  Label labNameExt{shell_, "labNameExt"};
  ControlArray<Label> labHead{shell_, "labHead", {0, 1, 2}};
  ControlArray<TextBox> txtHead{shell_, "txtHead", {0, 1, 2}};
  ControlArray<TextBox> txtIndex{shell_, "txtIndex", {0, 1, 2}};

 private:
  void design();
  void connect();

  const ColumnPage& columns_;
  bool filled_ = false;
};

}  // namespace quenda

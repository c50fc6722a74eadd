#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "platform/controls/control_array.h"
#include "platform/controls/lists.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "settings/import_settings.h"
#include "wizard/composition.h"
#include "wizard/pages/column_page.h"
#include "wizard/shell/wizard_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// The fourth page: the order of the parts of an address, and which number gets which address.
class AddressPage : public WizardPage {
 public:
  AddressPage(WizardShell& shell, const ColumnPage& columns);

  /// The chosen columns are shown.
  [[nodiscard]] bool can_go_on() const override { return filled_; }
  void load_captions();
  void load(const ImportSettings& settings);
  void save(ImportSettings& settings) const;

  void HeaderFillAdress();
  void cmbFlipAdress_Click();
  void SetAdress();
  void pClearAdress();
  void chk1_Click(int index);
  void chk2_Click(int index);
  void chk3_Click(int index);

  /// The order of the parts in an address; empty while no address has any.
  [[nodiscard]] const AddressOrder& order() const { return order_; }
  [[nodiscard]] const std::array<Binding, kNumberRows>& bindings() const { return bindings_; }

  Label labFlipAdress{shell_, "labFlipAdress"};
  ComboList cmbFlipAdress{shell_, "cmbFlipAdress"};
  ControlArray<Label> labAdres{shell_, "labAdres", {0, 1}};
  ControlArray<TextBox> txtAdres{shell_, "txtAdres", {0, 1}};
  Label labAdresBind{shell_, "labAdresBind"};
  ControlArray<Frame> frmBind{shell_, "frmBind", {0, 1, 2}};
  ControlArray<CheckBox> chk1{shell_, "chk1", {0, 1}};
  ControlArray<CheckBox> chk2{shell_, "chk2", {0, 1}};
  ControlArray<CheckBox> chk3{shell_, "chk3", {0, 1}};
  ControlArray<TextBox> txtAdresBind{shell_, "txtAdresBind", {0, 1, 2}};

 private:
  void design();
  void connect();
  [[nodiscard]] const ControlArray<CheckBox>& boxes(std::size_t row) const;
  void click_box(std::size_t row, int index);
  void bind_row(std::size_t row, int index);
  void name_rows();
  [[nodiscard]] std::vector<std::string> part_names(std::size_t address) const;
  void refresh_bound_addresses();

  const ColumnPage& columns_;
  std::vector<AddressOrder> orders_;  // one per entry of cmbFlipAdress
  AddressOrder order_;
  std::array<Binding, kNumberRows> bindings_{};
  bool filled_ = false;
};

}  // namespace quenda

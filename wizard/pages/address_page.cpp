#include "wizard/pages/address_page.h"

#include "settings/app.h"
#include "support/procedure.h"

namespace quenda {

AddressPage::AddressPage(WizardShell& shell, const ColumnPage& columns)
    : WizardPage(shell), columns_(columns) {
  shell_.set_page(Page::kAddresses, *this);
  design();
  connect();
}

void AddressPage::connect() {
  cmbFlipAdress.on_click = [this] { cmbFlipAdress_Click(); };
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    for (const auto& box : boxes(row)) {
      box->on_click = [this, row, index = box->index()] { click_box(row, index); };
    }
  }
}

void AddressPage::load(const ImportSettings& settings) {
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    for (const auto& box : boxes(row)) {
      const int value = settings.add_check[row].at(static_cast<std::size_t>(box->index()));
      skip_faults({[&] { box->set_value(value); }});
    }
  }
}

void AddressPage::save(ImportSettings& settings) const {
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    for (const auto& box : boxes(row)) {
      settings.add_check[row].at(static_cast<std::size_t>(box->index())) = box->value();
    }
  }
}

const ControlArray<CheckBox>& AddressPage::boxes(std::size_t row) const {
  const ControlArray<CheckBox>* const rows[] = {&chk1, &chk2, &chk3};
  return *rows[row];
}

void AddressPage::click_box(std::size_t row, int index) {
  using Click = void (AddressPage::*)(int);
  constexpr std::array<Click, kNumberRows> kClicks = {
      &AddressPage::chk1_Click, &AddressPage::chk2_Click, &AddressPage::chk3_Click};
  (this->*kClicks.at(row))(index);
}

void AddressPage::chk1_Click(int index) {
  procedure(app_.errors, "fMain.chk1_Click", {index}, [&] { bind_row(0, index); }).or_go_on();
}

void AddressPage::chk2_Click(int index) {
  procedure(app_.errors, "fMain.chk2_Click", {index}, [&] { bind_row(1, index); }).or_go_on();
}

void AddressPage::chk3_Click(int index) {
  procedure(app_.errors, "fMain.chk3_Click", {index}, [&] { bind_row(2, index); }).or_go_on();
}

void AddressPage::bind_row(std::size_t row, int index) {
  TextBox& bound = txtAdresBind(static_cast<int>(row));
  if (boxes(row)(index).ticked()) {
    boxes(row)(1 - index).set_ticked(false);
    bound.set_text(txtAdres(index).text());
    bindings_.at(row) = index == 0 ? Binding::kAddress1 : Binding::kAddress2;
  } else {
    bound.set_text("");
    bindings_.at(row) = Binding::kNone;
  }
}

void AddressPage::refresh_bound_addresses() {
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    for (const auto& box : boxes(row)) {
      if (box->ticked()) click_box(row, box->index());
    }
  }
}

void AddressPage::pClearAdress() {
  procedure(app_.errors, "fMain.pClearAdress", {}, [&] {
    for (const auto& preview : txtAdres) preview->set_text("");
  }).or_go_on();
}

/// Each number that is imported has its row, under the number's name.
void AddressPage::name_rows() {
  const std::vector<std::string> numbers = columns_.chosen_names(kNumbers);
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    const bool used = row < numbers.size();
    Frame& frame = frmBind(static_cast<int>(row));
    frame.set_caption(used ? numbers[row] : std::string());
    frame.set_visible(used);
  }
}

void AddressPage::HeaderFillAdress() {
  filled_ = procedure(app_.errors, "fMain.HeaderFillAdress", {}, [&] {
    pClearAdress();
    name_rows();
    std::vector<std::string> longest = part_names(0);
    if (std::vector<std::string> second = part_names(1); second.size() > longest.size()) {
      longest = std::move(second);
    }
    order_.clear();
    orders_ = address_orders(longest.size());
    std::vector<std::string> shown;
    for (const AddressOrder& order : orders_) shown.push_back(address_order_name(longest, order));
    cmbFlipAdress.set_items(shown);
    cmbFlipAdress.set_enabled(orders_.size() > 1);
    if (orders_.empty()) return refresh_bound_addresses();
    // An order that this choice of columns does not have gives way to the first.
    const int wanted = app_.settings.address_flip;
    cmbFlipAdress.set_list_index(wanted < cmbFlipAdress.count() ? wanted : 0);
  });
}

std::vector<std::string> AddressPage::part_names(std::size_t address) const {
  return columns_.chosen_names(address == 0 ? kAddress1 : kAddress2);
}

void AddressPage::cmbFlipAdress_Click() {
  procedure(app_.errors, "fMain.cmbFlipAdress_Click", {}, [&] {
    const int chosen = cmbFlipAdress.list_index();
    if (chosen < 0) return;
    app_.settings.address_flip = chosen;
    order_ = orders_.at(static_cast<std::size_t>(chosen));
    SetAdress();
    refresh_bound_addresses();
  }).or_go_on();
}

void AddressPage::SetAdress() {
  procedure(app_.errors, "fMain.SetAdress", {}, [&] {
    for (std::size_t address = 0; address < kAddressCount; ++address) {
      txtAdres(static_cast<int>(address)).set_text(address_preview(part_names(address), order_));
    }
  }).or_go_on();
}

}  // namespace quenda

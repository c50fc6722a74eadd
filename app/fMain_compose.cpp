#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "app/busy.h"
#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/text.h"
#include "wizard/composition.h"
#include "wizard/header_columns.h"

namespace quenda {
namespace {

std::vector<std::size_t> chosen_columns(const ListBox& list, HeaderKind kind) {
  const std::vector<int> positions = list.selected_positions();
  const std::size_t count = std::min(positions.size(), most_columns(kind));
  return {positions.begin(), positions.begin() + static_cast<std::ptrdiff_t>(count)};
}

std::vector<std::string> texts_of(const ListBox& list, const std::vector<std::size_t>& columns) {
  std::vector<std::string> texts;
  texts.reserve(columns.size());
  for (const std::size_t column : columns) {
    texts.push_back(replace_all(list.item(static_cast<int>(column)), "\"", ""));
  }
  return texts;
}

}  // namespace

void fMain::HeaderFillName() {
  procedure(app_.errors, "fMain.HeaderFillName", {}, [&] {
    pClearName();
    choice_.names = chosen_columns(lstHeader(kNames), kNames);
    choice_.numbers = chosen_columns(lstHeader(kNumbers), kNumbers);
    std::vector<std::string> names = texts_of(lstHeader(kNames), choice_.names);
    names.resize(2);
    const bool both = !names[0].empty() && !names[1].empty();
    chkFlip.set_enabled(both);
    if (!both) chkFlip.set_ticked(false);
    txtHeadName.set_text(compose_name(names[0], names[1], chkFlip.ticked()));
    const std::vector<std::string> numbers = texts_of(lstHeader(kNumbers), choice_.numbers);
    for (std::size_t row = 0; row < kNumberRows; ++row) {
      const int index = static_cast<int>(row);
      const bool used = row < numbers.size();
      txtHead(index).set_text(used ? numbers[row] : std::string());
      txtIndex(index).set_enabled(used);
      ObjectEnable(used, txtIndex, static_cast<std::int16_t>(index));
      frmBind(index).set_caption(used ? numbers[row] : std::string());
      frmBind(index).set_visible(used);
    }
  }).or_go_on();
}

void fMain::chkFlip_Click() {
  procedure(app_.errors, "fMain.chkFlip_Click", {}, [&] {
    if (!wizard.loading) HeaderFillName();
  }).or_go_on();
}

void fMain::pClearName() {
  procedure(app_.errors, "fMain.pClearName", {}, [&] { txtHeadName.set_text(""); }).or_go_on();
}

void fMain::pClearAdress() {
  procedure(app_.errors, "fMain.pClearAdress", {}, [&] {
    for (const auto& preview : txtAdres) preview->set_text("");
  }).or_go_on();
}

void fMain::HeaderFillAdress() {
  procedure(app_.errors, "fMain.HeaderFillAdress", {}, [&] {
    pClearAdress();
    const std::array kinds = {kAddress1, kAddress2};
    std::vector<std::string> longest;
    for (std::size_t address = 0; address < kAddressCount; ++address) {
      choice_.addresses[address] =
          chosen_columns(lstHeader(static_cast<int>(kinds[address])), kinds[address]);
      std::vector<std::string> names = address_names(address);
      if (names.size() > longest.size()) longest = std::move(names);
    }
    address_order_ = {0};
    cmbFlipAdress.set_items(address_order_names(longest));
    cmbFlipAdress.set_enabled(cmbFlipAdress.count() > 1);
    // An order that this choice of columns does not have gives way to the first.
    const int wanted = app_.settings.address_flip;
    if (cmbFlipAdress.count() > 0) {
      cmbFlipAdress.set_list_index(wanted < cmbFlipAdress.count() ? wanted : 0);
    } else {
      refresh_bound_addresses();
    }
  }).or_go_on();
}

std::vector<std::string> fMain::address_names(std::size_t address) const {
  return texts_of(lstHeader(static_cast<int>(kAddress1 + address)), choice_.addresses.at(address));
}

void fMain::cmbFlipAdress_Click() {
  procedure(app_.errors, "fMain.cmbFlipAdress_Click", {}, [&] {
    const int chosen = cmbFlipAdress.list_index();
    if (chosen < 0) return;
    app_.settings.address_flip = chosen;
    address_order_ = address_order(cmbFlipAdress.text(), chosen);
    SetAdress();
    refresh_bound_addresses();
  }).or_go_on();
}

void fMain::SetAdress() {
  procedure(app_.errors, "fMain.SetAdress", {}, [&] {
    for (std::size_t address = 0; address < kAddressCount; ++address) {
      txtAdres(static_cast<int>(address))
          .set_text(address_preview(address_names(address), address_order_));
    }
  }).or_go_on();
}

void fMain::refresh_bound_addresses() {
  using Click = void (fMain::*)(int);
  constexpr std::array<Click, kNumberRows> kClicks = {&fMain::chk1_Click, &fMain::chk2_Click,
                                                      &fMain::chk3_Click};
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    for (const auto& box : address_boxes(row)) {
      if (box->ticked()) (this->*kClicks[row])(box->index());
    }
  }
}

Composition fMain::composition() const {
  Composition composition;
  composition.columns = choice_;
  composition.flip_name = chkFlip.ticked();
  composition.address_order = address_order_;
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    composition.suffixes[row] = txtIndex(static_cast<int>(row)).text();
    composition.bindings[row] = bindings_[row] == "0"   ? Binding::kAddress1
                                : bindings_[row] == "1" ? Binding::kAddress2
                                                        : Binding::kNone;
  }
  return composition;
}

bool fMain::Scramble() {
  return procedure(app_.errors, "fMain.Scramble", {}, [&] {
    const BusyWork busy(*this);
    StatusBar.set_panel(2, texts.data_set_clean);
    lstImpFinal.clear();
    entries_.clear();
    EntryComposer composer(composition(), source.Delimiter.front(),
                           [this](std::string_view number) { return fCleanNumbers(number); });
    const std::size_t count = source.ImportRows.size();
    entries_.reserve(count, source.ImportRows.bytes());
    for (std::size_t record = 0; record < count; ++record) {
      composer.compose(source.ImportRows, record, entries_);
      step(record + 1, count);
    }
    StatusBar.set_panel(2, texts.erase_multiple);
    remove_repeated_lines(entries_, [this] { answer_events(); });
    ListUpdate();
    StatusBar.set_panel(2, "");
  });
}

}  // namespace quenda

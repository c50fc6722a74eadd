#include <string>
#include <string_view>

#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/text.h"
#include "wizard/header_columns.h"

// What the settings remember of the controls, and back.
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

void fMain::LoadWindowPosition() {
  load_window_position(app_.ini, app_.settings);
  Place at = place();
  at.left = app_.settings.left;
  at.top = app_.settings.top;
  set_place(at);
}

void fMain::LoadPageOptions() {
  ImportSettings& settings = app_.settings;
  load_page_options(app_.ini, settings);
  skip_faults({[&] { optAsk(settings.ask).choose(); },
               [&] { chkNameLen.set_value(settings.min_name_length); },
               [&] { chkFlipName.set_value(settings.ol_name_flip); },
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

void fMain::LoadHeaderOptions() {
  ImportSettings& settings = app_.settings;
  for (const auto& box : txtIndex) {
    settings.name_ext.at(static_cast<std::size_t>(box->index())) = box->text();
  }
  load_header_options(app_.ini, settings);
  wizard.loading = true;
  skip_faults({[&] { chkFlip.set_value(settings.name_flip); }});
  for (const auto& box : txtIndex) {
    skip_faults(
        {[&] { box->set_text(settings.name_ext.at(static_cast<std::size_t>(box->index()))); }});
  }
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    for (const auto& box : address_boxes(row)) {
      const int value = settings.add_check[row].at(static_cast<std::size_t>(box->index()));
      skip_faults({[&] { box->set_value(value); }});
    }
  }
  wizard.loading = false;
}

void fMain::SaveWindowPosition() {
  skip_faults({[&] {
    app_.settings.left = place().left;
    app_.settings.top = place().top;
    save_window_position(app_.ini, app_.settings);
  }});
}

void fMain::SaveSelections() {
  ImportSettings& settings = app_.settings;
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    const ListBox& list = lstHeader(static_cast<int>(kind));
    settings.selections[kind].fill("");
    settings.selection_counts[kind] = 0;
    for (const int position : list.selected_positions()) {
      const int count = settings.selection_counts[kind];
      if (count == kMostColumns[kind]) break;
      settings.selections[kind][static_cast<std::size_t>(count)] = list.item(position);
      settings.selection_counts[kind] = count + 1;
    }
  }
  save_selections(app_.ini, settings);
}

void fMain::SaveOptions(bool delimited_file) {
  // Faults are reported under the name of the header analysis, with which this saving began.
  procedure(app_.errors, "fMain.ImpHeader", {delimited_file}, [&] {
    ImportSettings& settings = app_.settings;
    for (const auto& option : optAsk) {
      if (option->chosen()) settings.ask = option->index();
    }
    settings.min_name_length = chkNameLen.value();
    settings.ol_name_flip = chkFlipName.value();
    settings.ol_address_flip = chkFlipAdress.value();
    settings.ol_number.clear();
    settings.ol_adress.clear();
    for (const auto& box : chkImport) settings.ol_number += tick_digit(*box);
    for (const auto& box : chkAdr) settings.ol_adress += tick_digit(*box);
    for (const auto& box : txtImport) {
      settings.ol_name_ext.at(static_cast<std::size_t>(box->index() - 1)) = box->text();
    }
    save_page_options(app_.ini, settings);
    if (!delimited_file) return;

    settings.name_flip = chkFlip.value();
    for (const auto& box : txtIndex) {
      settings.name_ext.at(static_cast<std::size_t>(box->index())) = box->text();
    }
    for (std::size_t row = 0; row < kNumberRows; ++row) {
      for (const auto& box : address_boxes(row)) {
        settings.add_check[row].at(static_cast<std::size_t>(box->index())) = box->value();
      }
    }
    save_header_options(app_.ini, settings);
    SaveSelections();
  }).or_go_on();
}

}  // namespace quenda

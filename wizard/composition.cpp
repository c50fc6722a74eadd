#include "wizard/composition.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "sources/cell_adaptation.h"
#include "text/conversions.h"
#include "text/entry_origin.h"
#include "text/entry_text.h"
#include "text/text.h"

namespace quenda {
namespace {

/// Adds a field as the cell of an entry has it: without quotes, with a blank for a line break.
void append_cell(std::string& out, const RecordField& field) {
  if (field.breaks) {
    append_cell(out, {without_line_breaks(field.text), field.quotes});
    return;
  }
  std::string_view text = field.text;
  if (field.quotes) {
    for (auto at = text.find('"'); at != text.npos; at = text.find('"')) {
      out += text.substr(0, at);
      text.remove_prefix(at + 1);
    }
  }
  out += text;
}

}  // namespace

std::string compose_name(std::string_view first, std::string_view second, bool flip) {
  return replace_all(concat(flip ? second : first, " ", flip ? first : second), "\"", "");
}

const std::vector<AddressOrder>& address_orders(std::size_t parts) {
  static const std::vector<std::vector<AddressOrder>> orders = {
      {},
      {{0}},
      {{0, 1}, {1, 0}},
      {{0, 1, 2}, {0, 2, 1}, {1, 2, 0}, {1, 0, 2}, {2, 0, 1}, {2, 1, 0}}};
  return orders[std::min(parts, orders.size() - 1)];
}

std::string address_order_name(const std::vector<std::string>& parts, const AddressOrder& order) {
  std::string name;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i > 0) name += '/';
    name += replace_all(parts.at(order[i]), "/", "-");
  }
  return name;
}

std::string address_preview(const std::vector<std::string>& parts, const AddressOrder& order) {
  std::string joined;
  for (const std::size_t part : order) {
    if (part >= parts.size()) continue;
    joined += parts[part];
    joined += '/';
  }
  std::string preview = replace_all(joined, "//", "/");
  if (preview.starts_with('/')) preview.erase(0, 1);
  if (preview.ends_with('/')) preview.pop_back();
  return preview;
}

EntryComposer::EntryComposer(Composition composition, char delimiter, CleanNumber clean)
    : composition_(std::move(composition)), delimiter_(delimiter), clean_(std::move(clean)) {
  for (std::string& suffix : composition_.suffixes) suffix = entry_text(suffix);
  const ColumnChoice& columns = composition_.columns;
  for (const auto* positions :
       {&columns.names, &columns.numbers, &columns.addresses[0], &columns.addresses[1]}) {
    for (const std::size_t position : *positions) last_column_ = std::max(last_column_, position);
  }
  if (!composition_.adapt) return;
  for (const auto& column : {composition_.stand_ins.display, composition_.stand_ins.company}) {
    last_column_ = std::max(last_column_, column.value_or(0));
  }
}

void EntryComposer::compose(const RecordTable& records, std::size_t record, FlatTable& entries) {
  name_.clear();
  fields_.split(records, record, delimiter_, last_column_);
  if (!fields_.has_delimiter()) return;
  compose_name();
  const std::size_t rows = std::min(composition_.columns.numbers.size(), kNumberRows);
  for (std::size_t row = 0; row < rows; ++row) compose_numbers(record, row, entries);
}

void EntryComposer::compose_name() {
  const ColumnChoice& columns = composition_.columns;
  const auto name_part = [&](std::size_t part) {
    return part < columns.names.size() ? fields_[columns.names[part]] : RecordField();
  };
  append_cell(name_, name_part(composition_.flip_name ? 1 : 0));
  name_ += ' ';
  append_cell(name_, name_part(composition_.flip_name ? 0 : 1));
  if (!composition_.adapt) return;
  const auto stand_in = [&](const std::optional<std::size_t>& column) {
    std::string text;
    if (column && fields_.has(*column)) append_cell(text, fields_[*column]);
    return text;
  };
  if (trim(name_).empty()) {
    const std::string display = stand_in(composition_.stand_ins.display);
    const std::string company = stand_in(composition_.stand_ins.company);
    name_ = name_or_stand_in({}, display, company);
  }
  if (needs_adapting(name_)) name_ = adapted_text(name_);
  nameless_ = trim(name_).empty();
}

void EntryComposer::compose_numbers(std::size_t record, std::size_t row, FlatTable& entries) {
  const RecordField& field = fields_[composition_.columns.numbers[row]];
  std::string_view cell = field.text;
  if (!field.plain()) {
    number_.clear();
    append_cell(number_, field);
    cell = number_;
  }
  if (cell.empty()) return;
  if (!composition_.adapt || is_plain_number(cell)) {
    clean_(cell, cleaned_);
    return add_entry(record, row, cleaned_, entries);
  }
  for (const std::string& number : numbers_in_cell(cell, delimiter_)) {
    clean_(number, cleaned_);
    add_entry(record, row, cleaned_, entries);
  }
}

std::string_view EntryComposer::name() const { return trim(name_); }

void EntryComposer::add_entry(std::size_t record, std::size_t row, std::string_view number,
                              FlatTable& entries) {
  const std::string_view address = address_of(row);
  const bool numeric = is_numeric(number);
  if (!numeric && !on_number) return;
  const std::size_t name_size = name_.size();
  const std::string& suffix = composition_.suffixes[row];
  // A suffix alone is no name.
  if (!suffix.empty() && !nameless_) name_.append(" ").append(suffix);
  const std::string_view name = trim(name_);
  if (on_number) {
    const std::string_view raw = fields_[composition_.columns.numbers[row]].text;
    on_number({row, raw, number, name, address, numeric});
  }
  if (numeric) entries.add_row(std::array{name, number, address}, entry_origin(record, row + 1));
  name_.resize(name_size);
}

std::string_view EntryComposer::address_of(std::size_t row) {
  const Binding binding = composition_.bindings[row];
  if (binding == Binding::kNone) return {};
  const auto& positions = composition_.columns.addresses[binding == Binding::kAddress2 ? 1 : 0];
  std::array<RecordField, kAddressParts> parts;
  for (std::size_t i = 0; i < std::min(positions.size(), parts.size()); ++i) {
    parts[i] = fields_[positions[i]];
  }
  const AddressOrder& order = composition_.address_order;
  address_.clear();
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i > 0) address_ += ' ';
    append_cell(address_, parts[order.size() == 1 ? 0 : order[i]]);
  }
  if (composition_.adapt && needs_adapting(address_)) address_ = adapted_text(address_);
  return trim(address_);
}

}  // namespace quenda

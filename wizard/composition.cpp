#include "wizard/composition.h"

#include <algorithm>
#include <utility>

#include "text/conversions.h"
#include "text/entry_origin.h"
#include "text/entry_text.h"
#include "text/text.h"

namespace quenda {
namespace {

/// Adds the field as the cell of an entry has it: without quotes, and with a blank for a line
/// break.
void append_cell(std::string& out, std::string_view field) {
  if (field.find_first_of("\r\n") != field.npos) {
    append_cell(out, without_line_breaks(field));
    return;
  }
  for (auto at = field.find('"'); at != field.npos; at = field.find('"')) {
    out += field.substr(0, at);
    field.remove_prefix(at + 1);
  }
  out += field;
}

void append_name(std::string& out, std::string_view first, std::string_view second, bool flip) {
  append_cell(out, flip ? second : first);
  out += ' ';
  append_cell(out, flip ? first : second);
}

template <class Parts>
void append_parts(std::string& out, const Parts& parts, const AddressOrder& order) {
  if (order.size() == 1) {
    out += parts[0];
    return;
  }
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i > 0) out += ' ';
    out += parts[order[i]];
  }
}

}  // namespace

std::string compose_name(std::string_view first, std::string_view second, bool flip) {
  std::string name;
  append_name(name, first, second, flip);
  return name;
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
}

void EntryComposer::compose(const RecordTable& records, std::size_t record, FlatTable& entries) {
  fields_.split(records, record, delimiter_, last_column_);
  if (!fields_.has_delimiter()) return;
  const ColumnChoice& columns = composition_.columns;
  const auto name_part = [&](std::size_t part) {
    return part < columns.names.size() ? fields_[columns.names[part]] : std::string_view();
  };
  name_.clear();
  append_name(name_, name_part(0), name_part(1), composition_.flip_name);

  const std::size_t rows = std::min(columns.numbers.size(), kNumberRows);
  std::string number;
  for (std::size_t row = 0; row < rows; ++row) {
    number.clear();
    append_cell(number, fields_[columns.numbers[row]]);
    if (number.empty()) continue;
    add_entry(record, row, clean_(number), entries);
  }
}

std::string_view EntryComposer::name() const { return trim(name_); }

void EntryComposer::add_entry(std::size_t record, std::size_t row, std::string_view number,
                              FlatTable& entries) {
  const std::string_view address = address_of(row);
  const bool numeric = is_numeric(number);
  if (!numeric && !on_number) return;
  const std::size_t name_size = name_.size();
  name_.append(" ").append(composition_.suffixes[row]);
  const std::string_view name = trim(name_);
  if (on_number) {
    const std::string_view raw = fields_[composition_.columns.numbers[row]];
    on_number({row, raw, number, name, address, numeric});
  }
  if (numeric) entries.add_row(std::array{name, number, address}, entry_origin(record, row + 1));
  name_.resize(name_size);
}

std::string_view EntryComposer::address_of(std::size_t row) {
  const Binding binding = composition_.bindings[row];
  if (binding == Binding::kNone) return {};
  const auto& positions = composition_.columns.addresses[binding == Binding::kAddress2 ? 1 : 0];
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    parts_[i].clear();
    if (i < positions.size()) append_cell(parts_[i], fields_[positions[i]]);
  }
  address_.clear();
  append_parts(address_, parts_, composition_.address_order);
  return trim(address_);
}

}  // namespace quenda

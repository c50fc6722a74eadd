#include "wizard/composition.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

#include "sources/cell_adaptation.h"
#include "text/conversions.h"
#include "text/entry_origin.h"
#include "text/entry_text.h"
#include "text/text.h"

namespace quenda {
namespace {

/// A field that is not plain, as `cell_of` gives it.
std::string_view changed_cell_of(const RecordField& field, std::string& changed) {
  const std::string_view text = field.text;
  const bool in_quotes = field.quotes == 2 && text.front() == '"' && text.back() == '"';
  if (in_quotes && !field.breaks) return text.substr(1, text.size() - 2);
  changed = field.breaks ? without_line_breaks(text) : std::string(text);
  changed.erase(std::remove(changed.begin(), changed.end(), '"'), changed.end());
  return changed;
}

/// A field as the cell of an entry has it: without quotes, with a blank for a line break. `changed`
/// is used where it does not stand so in the record.
std::string_view cell_of(const RecordField& field, std::string& changed) {
  return field.plain() ? field.text : changed_cell_of(field, changed);
}

/// Puts the text there; returns where it ends.
char* put(char* to, std::string_view text) { return std::copy(text.begin(), text.end(), to); }

std::string_view view(const char* start, const char* end) {
  return {start, static_cast<std::size_t>(end - start)};
}

/// Trims a text that has been put there; it begins at the same place then.
std::string_view trim_there(char* start, const char* end) {
  const std::string_view trimmed = trim(view(start, end));
  if (trimmed.data() != start) std::memmove(start, trimmed.data(), trimmed.size());
  return {start, trimmed.size()};
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
  name_ = {};
  fields_.split(records, record, delimiter_, last_column_);
  if (!fields_.has_delimiter()) return;
  compose_name();
  const std::size_t rows = std::min(composition_.columns.numbers.size(), kNumberRows);
  for (std::size_t row = 0; row < rows; ++row) compose_numbers(record, row, entries);
}

void EntryComposer::compose_name() {
  const ColumnChoice& columns = composition_.columns;
  static const RecordField kEmpty;
  const auto name_part = [&](std::size_t part) -> const RecordField& {
    return part < columns.names.size() ? fields_[columns.names[part]] : kEmpty;
  };
  const RecordField& first = name_part(composition_.flip_name ? 1 : 0);
  const RecordField& second = name_part(composition_.flip_name ? 0 : 1);
  const std::size_t most = first.text.size() + 1 + second.text.size();
  if (name_room_.size() < most) name_room_.resize(most);
  char* end = put(name_room_.data(), cell_of(first, changed_));
  *end++ = ' ';
  end = put(end, cell_of(second, changed_));
  name_ = view(name_room_.data(), end);
  if (composition_.adapt) adapt_name();
}

void EntryComposer::adapt_name() {
  const auto stand_in = [&](const std::optional<std::size_t>& column) {
    const bool there = column && fields_.has(*column);
    return there ? std::string(cell_of(fields_[*column], changed_)) : std::string();
  };
  if (trim(name_).empty()) {
    const std::string display = stand_in(composition_.stand_ins.display);
    const std::string company = stand_in(composition_.stand_ins.company);
    name_ = adapted_name_ = name_or_stand_in({}, display, company);
  }
  if (needs_adapting(name_)) name_ = adapted_name_ = adapted_text(name_);
  nameless_ = trim(name_).empty();
}

void EntryComposer::compose_numbers(std::size_t record, std::size_t row, FlatTable& entries) {
  const std::string_view cell = cell_of(fields_[composition_.columns.numbers[row]], number_);
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
  const AddressParts parts = address_parts(row);
  const bool numeric = is_numeric(number);
  if (!numeric && !on_number) return;
  std::size_t address_size = size_of_address(parts);
  if (composition_.adapt) {
    adapt_address(parts, address_size);
    address_size = address_.size();
  }
  // A suffix alone is no name.
  const std::string_view suffix = nameless_ ? std::string_view() : composition_.suffixes[row];
  constexpr std::size_t kBetween = 3;
  char* to =
      entries.room_for_row(name_.size() + suffix.size() + number.size() + address_size + kBetween);
  char* end = put(to, name_);
  if (!suffix.empty()) {
    *end++ = ' ';
    end = put(end, suffix);
  }
  const std::string_view name = trim_there(to, end);
  to += name.size() + 1;
  end = put(to, number);
  const std::string_view digits = view(to, end);
  to = end + 1;
  end = composition_.adapt ? put(to, address_) : put_address(to, parts);
  const std::string_view address = trim_there(to, end);
  if (on_number) {
    const std::string_view raw = fields_[composition_.columns.numbers[row]].text;
    on_number({row, raw, digits, name, address, numeric});
  }
  if (numeric) {
    entries.add_written_row(std::array{name.size(), digits.size(), address.size()},
                            entry_origin(record, row + 1));
  }
}

EntryComposer::AddressParts EntryComposer::address_parts(std::size_t row) {
  AddressParts parts;
  const Binding binding = composition_.bindings[row];
  if (binding == Binding::kNone) return parts;
  const auto& positions = composition_.columns.addresses[binding == Binding::kAddress2 ? 1 : 0];
  static const RecordField kEmpty;
  std::array<const RecordField*, kAddressParts> fields = {&kEmpty, &kEmpty, &kEmpty};
  for (std::size_t i = 0; i < std::min(positions.size(), fields.size()); ++i) {
    fields[i] = &fields_[positions[i]];
  }
  const AddressOrder& order = composition_.address_order;
  for (const std::size_t part : order) {
    parts.fields[parts.count++] = fields[order.size() == 1 ? 0 : part];
  }
  return parts;
}

std::size_t EntryComposer::size_of_address(const AddressParts& parts) {
  std::size_t size = parts.count;
  for (std::size_t i = 0; i < parts.count; ++i) size += parts.fields[i]->text.size();
  return size;
}

char* EntryComposer::put_address(char* to, const AddressParts& parts) {
  for (std::size_t i = 0; i < parts.count; ++i) {
    if (i > 0) *to++ = ' ';
    to = put(to, cell_of(*parts.fields[i], changed_));
  }
  return to;
}

void EntryComposer::adapt_address(const AddressParts& parts, std::size_t most_bytes) {
  address_.resize(most_bytes);
  const char* const end = put_address(address_.data(), parts);
  address_.resize(view(address_.data(), end).size());
  if (needs_adapting(address_)) address_ = adapted_text(address_);
}

}  // namespace quenda

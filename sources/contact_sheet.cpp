#include "sources/contact_sheet.h"

#include <algorithm>

#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::array<std::string_view, 4> kNameHeadings = {"Anzeigename", "Nachname", "Vorname",
                                                           "Firma"};
constexpr std::array<std::string_view, kNumberKindCount> kNumberHeadings = {
    "Telefon privat", u8"Telefon geschäftlich"_de, "Mobiltelefon",
    "Fax privat",     u8"Fax geschäftlich"_de,     "Weitere Rufnummer"};
constexpr std::array<std::string_view, 4> kAddressHeadings = {u8"Straße"_de, "PLZ", "Ort", "Land"};
constexpr std::array<std::string_view, 2> kAddressKinds = {"privat", u8"geschäftlich"_de};

constexpr std::string_view kBetweenNumbers = " ::: ";

void append_field(std::string& out, std::string_view text) {
  for (const char c : text) {
    if (c == ContactSheet::kDelimiter) {
      out += '|';
    } else if (c == '\r' || c == '\n') {
      out += ' ';
    } else if (c != '"' && (c == '\t' || static_cast<unsigned char>(c) >= ' ')) {
      out += c;
    }
  }
}

}  // namespace

std::string_view name_heading(NameField field) {
  return kNameHeadings.at(static_cast<std::size_t>(field));
}

std::string number_heading(NumberKind kind, std::size_t position) {
  std::string heading(kNumberHeadings.at(static_cast<std::size_t>(kind)));
  if (position > 0) heading.append(" ").append(std::to_string(position + 1));
  return heading;
}

std::string address_heading(AddressKind kind, AddressField field) {
  return concat(kAddressHeadings.at(static_cast<std::size_t>(field)), " ",
                kAddressKinds.at(static_cast<std::size_t>(kind)));
}

void ContactSheet::begin(std::size_t line) {
  for (std::string& field : fields_) field.clear();
  line_ = line;
}

bool ContactSheet::empty() const {
  return std::all_of(fields_.begin(), fields_.end(),
                     [](const std::string& field) { return field.empty(); });
}

void ContactSheet::end() {
  if (empty()) return;
  contacts_.push_back({cells_.size(), line_});
  for (std::size_t column = 0; column < kColumns; ++column) {
    const std::string& field = fields_.at(column);
    if (field.empty()) continue;
    cells_.push_back(
        {static_cast<std::uint32_t>(column), static_cast<std::uint32_t>(field.size())});
    text_ += field;
    used_.at(column) = true;
  }
}

void ContactSheet::set_name(NameField field, std::string_view text) {
  std::string& name = fields_.at(static_cast<std::size_t>(field));
  if (name.empty()) append_field(name, trim(text));
}

void ContactSheet::add_number(NumberKind kind, std::string_view number) {
  const std::size_t first = kNameColumns + static_cast<std::size_t>(kind) * kMostOfAKind;
  std::size_t position = 0;
  while (position + 1 < kMostOfAKind && !fields_.at(first + position).empty()) ++position;
  std::string& field = fields_.at(first + position);
  if (!field.empty() && !trim(number).empty()) field += kBetweenNumbers;
  append_field(field, trim(number));
}

void ContactSheet::set_address(AddressKind kind, const std::array<std::string_view, 4>& parts) {
  const std::size_t first = kFirstAddress + static_cast<std::size_t>(kind) * kAddressParts;
  for (std::size_t part = 0; part < kAddressParts; ++part) {
    if (!fields_.at(first + part).empty()) return;
  }
  for (std::size_t part = 0; part < kAddressParts; ++part) {
    append_field(fields_.at(first + part), trim(parts.at(part)));
  }
}

std::string ContactSheet::heading(std::size_t column) {
  if (column < kNameColumns) return std::string(name_heading(static_cast<NameField>(column)));
  if (column < kFirstAddress) {
    const std::size_t number = column - kNameColumns;
    return number_heading(static_cast<NumberKind>(number / kMostOfAKind), number % kMostOfAKind);
  }
  const std::size_t part = column - kFirstAddress;
  return address_heading(static_cast<AddressKind>(part / kAddressParts),
                         static_cast<AddressField>(part % kAddressParts));
}

ConvertedTable ContactSheet::write() const {
  ConvertedTable table;
  table.delimiter = kDelimiter;
  table.made = true;
  std::array<std::size_t, kColumns> positions{};
  std::size_t columns = 0;
  for (std::size_t column = 0; column < kColumns; ++column) {
    positions.at(column) = columns;
    if (used_.at(column)) ++columns;
  }
  table.text.reserve(text_.size() + cells_.size() * 4 + contacts_.size() * 4);
  table.text += header();
  std::string_view rest = text_;
  for (std::size_t i = 0; i < contacts_.size(); ++i) {
    const std::size_t end = i + 1 < contacts_.size() ? contacts_[i + 1].first_cell : cells_.size();
    std::size_t position = 0;
    for (std::size_t cell = contacts_[i].first_cell; cell < end; ++cell) {
      const std::size_t wanted = positions.at(cells_[cell].column);
      table.text.append(wanted - position, kDelimiter);
      position = wanted;
      table.text += rest.substr(0, cells_[cell].size);
      rest.remove_prefix(cells_[cell].size);
    }
    // What is missing at the end, the reader adds; a record without a delimiter it would pass over.
    if (position == 0) table.text += kDelimiter;
    table.text += kCrLf;
    table.lines.begin_record(i + 1, contacts_[i].line);
  }
  return table;
}

std::string ContactSheet::header() const {
  std::string header;
  for (std::size_t column = 0; column < kColumns; ++column) {
    if (!used_.at(column)) continue;
    if (!header.empty()) header += kDelimiter;
    header += heading(column);
  }
  // A table of one column needs a delimiter to be one.
  if (header.find(kDelimiter) == std::string::npos) header += kDelimiter;
  return header += kCrLf;
}

}  // namespace quenda

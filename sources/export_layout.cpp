#include "sources/export_layout.h"

#include <algorithm>

#include "sources/contact_sheet.h"
#include "sources/file_facts.h"
#include "sources/known_exports.h"
#include "text/text.h"

namespace quenda {
namespace {

using Header = std::vector<std::string>;

std::optional<std::size_t> find_column(const Header& header, std::string_view heading) {
  if (heading.empty()) return std::nullopt;
  const auto found = std::find(header.begin(), header.end(), heading);
  if (found == header.end()) return std::nullopt;
  return static_cast<std::size_t>(found - header.begin());
}

ExportLayout::Address find_address(const Header& header, const AddressColumns& columns) {
  ExportLayout::Address address;
  for (const std::string_view heading : columns) {
    if (const auto column = find_column(header, heading)) address.parts.push_back(*column);
  }
  return address;
}

bool tells(const KnownExport& known, const Header& header) {
  return std::all_of(known.telling.begin(), known.telling.end(), [&](std::string_view heading) {
    return find_column(header, heading).has_value();
  });
}

ExportLayout layout_of(const KnownExport& known, const Header& header) {
  ExportLayout layout;
  layout.name = known.name;
  layout.last_name = find_column(header, known.last_name);
  layout.first_name = find_column(header, known.first_name);
  layout.display_name = find_column(header, known.display_name);
  layout.company = find_column(header, known.company);
  for (const NumberColumn& number : known.numbers) {
    if (const auto column = find_column(header, number.heading)) {
      layout.numbers.push_back({*column, number.kind});
    }
  }
  layout.addresses = {find_address(header, known.home), find_address(header, known.work)};
  return layout;
}

AddressColumns address_columns(AddressKind kind, std::array<std::string, 3>& headings) {
  headings = {address_heading(kind, AddressField::kStreet),
              address_heading(kind, AddressField::kCode),
              address_heading(kind, AddressField::kCity)};
  return {headings[0], headings[1], headings[2]};
}

/// The contact table: its numbers are as many as the contacts want.
ExportLayout contact_sheet_layout(const Header& header) {
  ExportLayout layout;
  layout.name = "Kontakttabelle";
  layout.last_name = find_column(header, name_heading(NameField::kLast));
  layout.first_name = find_column(header, name_heading(NameField::kFirst));
  layout.display_name = find_column(header, name_heading(NameField::kDisplay));
  layout.company = find_column(header, name_heading(NameField::kCompany));
  const auto add = [&](NumberKind kind, std::size_t position) {
    if (const auto column = find_column(header, number_heading(kind, position))) {
      layout.numbers.push_back({*column, kind});
    }
  };
  constexpr std::array kFirst = {NumberKind::kMobile, NumberKind::kHome, NumberKind::kWork};
  for (const NumberKind kind : kFirst) add(kind, 0);
  for (int kind = 0; kind < kNumberKindCount; ++kind) {
    const auto number = static_cast<NumberKind>(kind);
    const bool taken = std::find(kFirst.begin(), kFirst.end(), number) != kFirst.end();
    for (std::size_t position = taken ? 1 : 0; position < kMostOfAKind; ++position) {
      add(number, position);
    }
  }
  std::array<std::string, 3> headings;
  layout.addresses[0] = find_address(header, address_columns(AddressKind::kHome, headings));
  layout.addresses[1] = find_address(header, address_columns(AddressKind::kWork, headings));
  return layout;
}

bool is_contact_heading(std::string_view heading) {
  for (int field = 0; field < 4; ++field) {
    if (heading == name_heading(static_cast<NameField>(field))) return true;
    for (const AddressKind kind : {AddressKind::kHome, AddressKind::kWork}) {
      if (heading == address_heading(kind, static_cast<AddressField>(field))) return true;
    }
  }
  for (int kind = 0; kind < kNumberKindCount; ++kind) {
    for (std::size_t position = 0; position < kMostOfAKind; ++position) {
      if (heading == number_heading(static_cast<NumberKind>(kind), position)) return true;
    }
  }
  return false;
}

/// Whether a header is that of the contact table: nothing else in it, and a number.
bool is_contact_sheet(const Header& header) {
  std::size_t known = 0;
  for (const std::string& heading : header) {
    if (is_contact_heading(heading)) {
      ++known;
    } else if (!heading.empty()) {
      return false;
    }
  }
  return known > 1 && !contact_sheet_layout(header).numbers.empty();
}

}  // namespace

std::vector<std::string> readable_headings(const std::vector<std::string>& header) {
  Header readable;
  readable.reserve(header.size());
  for (const std::string& heading : header) {
    const std::size_t mark = readable.empty() ? mark_length(heading) : 0;
    const std::string_view text = std::string_view(heading).substr(mark);
    readable.push_back(from_utf8(text).value_or(std::string(text)));
  }
  return readable;
}

std::optional<ExportLayout> find_export_layout(const std::vector<std::string>& header) {
  const Header readable = readable_headings(header);
  for (const KnownExport& known : known_exports()) {
    if (tells(known, readable)) return layout_of(known, readable);
  }
  if (is_contact_sheet(readable)) return contact_sheet_layout(readable);
  return std::nullopt;
}

}  // namespace quenda

#include "sources/outlook_contacts.h"

#include "text/entry_origin.h"
#include "text/entry_text.h"
#include "text/text.h"

namespace quenda {
namespace {

enum Field : std::size_t {
  kFirstName = 1,
  kLastName,
  kCompany,
  kHomeStreet,
  kHomePostalCode,
  kHomeCity,
  kBusinessPostalCode = 11,
  kBusinessCity,
  kBusinessStreet,
};

/// Fields of the table's columns 1 to 13: the "other" number stands last of the numbers, although
/// it is read before the primary one.
constexpr std::array<std::size_t, kContactAnniversary> kFieldOfColumn = {8,  9,  10, 14, 15, 16, 17,
                                                                         18, 20, 21, 19, 22, 23};

std::string address_cell(std::string_view postal_code, std::string_view city,
                         std::string_view street) {
  return concat(entry_text(postal_code), " ", entry_text(city), ";", entry_text(street));
}

enum class Address { kNone, kPrivate, kBusiness };

Address address_of(std::size_t kind, const NumberKindChoice& choice) {
  if (has_two_addresses(kind)) {
    if (choice.first_address == choice.second_address) return Address::kNone;
    return choice.first_address ? Address::kPrivate : Address::kBusiness;
  }
  if (!choice.first_address) return Address::kNone;
  const bool business = (kind >= 4 && kind <= 6) || kind == 10;
  return business ? Address::kBusiness : Address::kPrivate;
}

/// "first;second" as "first<between>second", or the other way round.
void join_pair(std::string& out, std::string_view pair, std::string_view between, bool flip) {
  std::string_view first;
  std::string_view second;
  next_part(pair, ";", first);
  next_part(pair, ";", second);
  out.assign(flip ? second : first).append(between).append(flip ? first : second);
}

}  // namespace

void add_contact(ContactTable& table, const OutlookContact& contact) {
  const bool nameless = contact[kFirstName].empty() && contact[kLastName].empty();
  const std::string name =
      nameless ? concat(entry_text(contact[kCompany]), ";")
               : concat(entry_text(contact[kFirstName]), ";", entry_text(contact[kLastName]));
  const std::string home =
      address_cell(contact[kHomePostalCode], contact[kHomeCity], contact[kHomeStreet]);
  const std::string business =
      address_cell(contact[kBusinessPostalCode], contact[kBusinessCity], contact[kBusinessStreet]);
  std::array<std::string, kFieldOfColumn.size()> others;
  std::array<std::string_view, kContactColumns> cells;
  cells[kContactName] = name;
  for (std::size_t i = 0; i < kFieldOfColumn.size(); ++i) {
    cells[i + 1] = others[i] = entry_number(contact[kFieldOfColumn[i]]);
  }
  cells[kContactPrivateAddress] = home;
  cells[kContactBusinessAddress] = business;
  table.add_row(cells);
}

std::string contact_name(const ContactTable& contacts, std::size_t contact, bool flip) {
  std::string name;
  join_pair(name, contacts.cell(contact, kContactName), " ", flip);
  return std::string(trim(name));
}

FlatTable preview_rows(const ContactTable& contacts, const OutlookChoice& choice) {
  FlatTable rows(3);
  std::array<std::string, kNumberKinds + 1> suffixes;
  for (std::size_t kind = 1; kind <= kNumberKinds; ++kind) {
    suffixes[kind] = entry_text(choice.kinds[kind].suffix);
  }
  std::string name;
  std::string address;
  for (std::size_t i = 0; i < contacts.rows(); ++i) {
    for (std::size_t kind = 1; kind <= kNumberKinds; ++kind) {
      const NumberKindChoice& chosen = choice.kinds[kind];
      if (!chosen.import) continue;
      const std::string_view number = contacts.cell(i, kind);
      if (number.empty()) continue;
      join_pair(name, contacts.cell(i, kContactName), " ", choice.flip_name);
      name.append(" ").append(suffixes[kind]);
      const Address source = address_of(kind, chosen);
      address.clear();
      if (source != Address::kNone) {
        const bool business = source == Address::kBusiness;
        const auto column = business ? kContactBusinessAddress : kContactPrivateAddress;
        join_pair(address, contacts.cell(i, column), ", ", choice.flip_address);
      }
      rows.add_row(std::array{trim(name), trim(number), trim(address)}, entry_origin(i, kind));
    }
  }
  return rows;
}

}  // namespace quenda

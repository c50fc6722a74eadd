#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/flat_table.h"

// Contacts from Outlook as a table of number kinds, and the preview that the user's ticks make of
// it.
namespace quenda {

inline constexpr std::size_t kContactFields = 24;
inline constexpr std::size_t kNumberKinds = 11;

/// The properties of a contact, in the order of an OutlookContact's fields. The business number
/// stands there twice: the second business number always repeats the first.
inline constexpr std::array<std::string_view, kContactFields> kContactProperties = {
    "Categories",
    "FirstName",
    "LastName",
    "CompanyName",
    "HomeAddressStreet",
    "HomeAddressPostalCode",
    "HomeAddressCity",
    "HomeAddressCountry",
    "HomeTelephoneNumber",
    "Home2TelephoneNumber",
    "HomeFaxNumber",
    "BusinessAddressPostalCode",
    "BusinessAddressCity",
    "BusinessAddressStreet",
    "BusinessTelephoneNumber",
    "BusinessTelephoneNumber",
    "BusinessFaxNumber",
    "MobileTelephoneNumber",
    "ISDNNumber",
    "OtherTelephoneNumber",
    "PrimaryTelephoneNumber",
    "CompanyMainTelephoneNumber",
    "Birthday",
    "Anniversary"};

/// The fields of one contact; all empty for an item that is no contact.
using OutlookContact = std::array<std::string, kContactFields>;

/// Columns of the contact table; columns 1 to 11 are the number kinds of the Outlook page.
enum ContactColumn : std::size_t {
  kContactName = 0,  // first name ";" last name, or company ";"
  kContactBirthday = 12,
  kContactAnniversary = 13,
  kContactPrivateAddress = 14,  // postal code and city ";" street
  kContactBusinessAddress = 15,
  kContactColumns = 16,
};

/// One row per contact.
class ContactTable : public FlatTable {
 public:
  ContactTable() : FlatTable(kContactColumns) {}
};

/// Adds a contact's row. Without first and last name the company stands for the name. Line breaks
/// become blanks; a ";" becomes "," in names and addresses, and goes from numbers.
void add_contact(ContactTable& table, const OutlookContact& contact);

/// What the user has ticked and typed for one number kind.
struct NumberKindChoice {
  bool import = false;
  bool first_address = false;   // chkAdr(kind)
  bool second_address = false;  // chkAdr(kind + 10), kinds 7, 8 and 11 only
  std::string suffix;
};

struct OutlookChoice {
  std::array<NumberKindChoice, kNumberKinds + 1> kinds;  // index = number kind, 0 unused
  bool flip_name = false;
  bool flip_address = false;
};

/// Whether a number kind offers both addresses.
constexpr bool has_two_addresses(std::size_t kind) { return kind == 7 || kind == 8 || kind == 11; }

/// Columns of the preview.
enum PreviewColumn : std::size_t { kPreviewName, kPreviewNumber, kPreviewAddress };

/// A contact's name in the order of the names, without a suffix.
std::string contact_name(const ContactTable& contacts, std::size_t contact, bool flip);

/// The preview: one row per contact and ticked number kind that the contact has a number of.
FlatTable preview_rows(const ContactTable& contacts, const OutlookChoice& choice);

}  // namespace quenda

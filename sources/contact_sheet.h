#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sources/contact_kinds.h"
#include "sources/table_conversion.h"

namespace quenda {

/// Most numbers of a kind that have columns of their own. Further ones share the cell of the last,
/// so that one card with thousands of numbers does not widen a million others.
inline constexpr std::size_t kMostOfAKind = 9;

enum class NameField { kDisplay, kLast, kFirst, kCompany };
enum class AddressField { kStreet, kCode, kCity, kCountry };

std::string_view name_heading(NameField field);
/// "Telefon privat", "Telefon privat 2"; `position` counts from 0.
std::string number_heading(NumberKind kind, std::size_t position);
std::string address_heading(AddressKind kind, AddressField field);

/// Gathers contacts and writes them as one table: the columns that any contact uses, in a settled
/// order, with German names.
class ContactSheet {
 public:
  static constexpr char kDelimiter = ';';

  /// Begins a contact that stands in its file from a line on, the first being 1.
  void begin(std::size_t line);
  /// Texts in Windows-1252. The first of a name field and of an address counts; an empty one is
  /// none.
  void set_name(NameField field, std::string_view text);
  void add_number(NumberKind kind, std::string_view number);
  void set_address(AddressKind kind, const std::array<std::string_view, 4>& parts);
  /// Whether the contact at hand has anything yet.
  [[nodiscard]] bool empty() const;
  /// Takes the contact at hand into the table unless it has nothing.
  void end();

  [[nodiscard]] std::size_t contacts() const { return contacts_.size(); }
  ConvertedTable write() const;

 private:
  struct Cell {
    std::uint32_t column;
    std::uint32_t size;
  };
  struct Contact {
    std::size_t first_cell;
    std::size_t line;
  };

  static constexpr std::size_t kNameColumns = 4;
  static constexpr std::size_t kAddressParts = 4;
  static constexpr std::size_t kFirstAddress = kNameColumns + kNumberKindCount * kMostOfAKind;
  static constexpr std::size_t kColumns = kFirstAddress + 2 * kAddressParts;
  static std::string heading(std::size_t column);

  [[nodiscard]] std::string header() const;

  std::array<std::string, kColumns> fields_;  // of the contact at hand
  std::size_t line_ = 0;
  std::vector<Contact> contacts_;
  std::vector<Cell> cells_;
  std::string text_;
  std::array<bool, kColumns> used_{};
};

}  // namespace quenda

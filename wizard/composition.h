#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/column_suggestion.h"
#include "sources/record_table.h"
#include "text/flat_table.h"

// How one record becomes rows of entries: name, cleaned number and address, one row per number.
namespace quenda {

inline constexpr std::size_t kNumberRows = 3;
inline constexpr std::size_t kAddressCount = 2;
inline constexpr std::size_t kAddressParts = 3;

/// What a number row takes as its address.
enum class Binding { kNone, kAddress1, kAddress2 };

/// The columns chosen for each purpose, as positions from 0 in the order of the file.
struct ColumnChoice {
  std::vector<std::size_t> names;
  std::vector<std::size_t> numbers;
  std::array<std::vector<std::size_t>, kAddressCount> addresses;
};

/// The parts of an address in the order in which they are joined, as positions from 0; empty where
/// no address has any part. An order of one takes the first part alone.
using AddressOrder = std::vector<std::size_t>;

/// Everything that the pages of the wizard settle about the entries.
struct Composition {
  ColumnChoice columns;
  bool flip_name = false;
  AddressOrder address_order;
  std::array<std::string, kNumberRows> suffixes;
  std::array<Binding, kNumberRows> bindings{};
  bool adapt = false;      // the cells are those of an adapted file
  NameStandIns stand_ins;  // for records without a name, where they are adapted
};

/// Two name parts as a name shows them: without quotes, with a blank between; flipped, the second
/// comes first. The blank stays when a part is empty.
std::string compose_name(std::string_view first, std::string_view second, bool flip);

/// The possible orders of so many address parts, in the order of the list that offers them: none
/// for no parts, six for three and more.
const std::vector<AddressOrder>& address_orders(std::size_t parts);

/// An order by the names of its parts, as "Straße/PLZ/Ort". A "/" inside a name is shown as "-", so
/// that the separators tell how many parts there are, also where a part has no name.
std::string address_order_name(const std::vector<std::string>& parts, const AddressOrder& order);

/// The names of an address's parts in an order, as the page shows them: "Straße/Ort".
std::string address_preview(const std::vector<std::string>& parts, const AddressOrder& order);

/// Brings a number into dialling form.
using CleanNumber = std::function<void(std::string_view number, std::string& cleaned)>;

/// A number of a record on its way into an entry. The texts are good only while one is told of it.
struct NumberSeen {
  std::size_t row = 0;      // which of the chosen number columns, from 0
  std::string_view raw;     // the cell
  std::string_view number;  // cleaned
  std::string_view name;    // with the suffix
  std::string_view address;
  bool numeric = false;  // only such a number becomes an entry
};

/// Turns records into rows of entries; made once for all records of a file.
class EntryComposer {
 public:
  EntryComposer(Composition composition, char delimiter, CleanNumber clean);

  /// Adds the record's rows (name, number, address), at most one per number row, in their order. A
  /// record without the delimiter has none. Line breaks in a cell become blanks. Fault 9 when a
  /// chosen column that is needed is missing in the record.
  void compose(const RecordTable& records, std::size_t record, FlatTable& entries);

  /// Told of every number before its entry is added, those that give none included; for accounts of
  /// what became of the source.
  std::function<void(const NumberSeen&)> on_number;

  /// The record's name without a suffix, as it was composed last.
  [[nodiscard]] std::string_view name() const;

 private:
  /// The parts of an address in the order in which they are joined.
  struct AddressParts {
    std::array<const RecordField*, kAddressParts> fields{};
    std::size_t count = 0;
  };

  void compose_name();
  void adapt_name();
  void compose_numbers(std::size_t record, std::size_t row, FlatTable& entries);
  void add_entry(std::size_t record, std::size_t row, std::string_view number, FlatTable& entries);
  [[nodiscard]] AddressParts address_parts(std::size_t row);
  /// Bytes that an address has at most.
  static std::size_t size_of_address(const AddressParts& parts);
  /// Puts the address there; returns where it ends.
  char* put_address(char* to, const AddressParts& parts);
  void adapt_address(const AddressParts& parts, std::size_t most_bytes);

  Composition composition_;
  char delimiter_;
  CleanNumber clean_;
  std::size_t last_column_ = 0;
  RecordFields fields_;
  std::string_view name_;  // in one of the two:
  std::string name_room_;  // as large as the largest name so far
  std::string adapted_name_;
  std::string number_;
  std::string cleaned_;
  std::string address_;    // adapted records only
  std::string changed_;    // a cell that does not stand in its record as it is needed
  bool nameless_ = false;  // adapted records only
};

}  // namespace quenda

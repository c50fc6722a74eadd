#include "sources/labelled_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "sources/contact_sheet.h"
#include "sources/kept_breaks.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

using Fields = std::vector<std::string_view>;

std::size_t find_column(const Fields& header, std::string_view name) {
  const auto found = std::find(header.begin(), header.end(), name);
  return found == header.end() ? kNone : static_cast<std::size_t>(found - header.begin());
}

/// The first of the names that the header has.
std::size_t find_column(const Fields& header, std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    if (const std::size_t column = find_column(header, name); column != kNone) return column;
  }
  return kNone;
}

struct LabelledNumber {
  std::size_t label;
  std::size_t value;
};

struct LabelledAddress {
  std::size_t label;
  std::array<std::size_t, 4> parts;
  std::size_t formatted;
};

/// Where a labelled table has what.
struct LabelledColumns {
  explicit LabelledColumns(const Fields& header) {
    names[0] = find_column(header, {"Name", "File As"});
    names[1] = find_column(header, {"Family Name", "Last Name"});
    names[2] = find_column(header, {"Given Name", "First Name"});
    names[3] = find_column(header, {"Organization Name", "Organization 1 - Name"});
    const auto labelled = [&](const std::string& item) {
      const std::string label = concat(item, " - Label");
      const std::string type = concat(item, " - Type");
      return find_column(header, {label, type});
    };
    for (std::size_t i = 1;; ++i) {
      const std::string item = concat("Phone ", std::to_string(i));
      const std::size_t value = find_column(header, concat(item, " - Value"));
      if (value == kNone) break;
      numbers.push_back({labelled(item), value});
    }
    for (std::size_t i = 1;; ++i) {
      const std::string item = concat("Address ", std::to_string(i));
      const auto part = [&](std::string_view name) {
        return find_column(header, concat(item, " - ", name));
      };
      const LabelledAddress address{
          labelled(item),
          {part("Street"), part("Postal Code"), part("City"), part("Country")},
          part("Formatted")};
      if (address.parts[0] == kNone && address.formatted == kNone) break;
      addresses.push_back(address);
    }
  }

  std::array<std::size_t, 4> names{};
  std::vector<LabelledNumber> numbers;
  std::vector<LabelledAddress> addresses;
};

Fields split_record(std::string_view record, char delimiter) {
  return split(record, std::string_view(&delimiter, 1));
}

/// A field with the delimiter back in place of "|", in one line.
std::string plain_field(const Fields& fields, std::size_t column, char delimiter) {
  if (column >= fields.size()) return {};
  std::string field = in_one_line(fields[column]);
  std::replace(field.begin(), field.end(), '|', delimiter);
  return field;
}

/// Reads the records of one table.
class LabelledReader {
 public:
  LabelledReader(const Fields& header, char delimiter) : columns_(header), delimiter_(delimiter) {}

  void take(std::string_view record, std::size_t line) {
    fields_ = split_record(record, delimiter_);
    contacts_.begin(line);
    for (std::size_t i = 0; i < columns_.names.size(); ++i) {
      contacts_.set_name(static_cast<NameField>(i), field(columns_.names.at(i)));
    }
    for (const LabelledNumber& number : columns_.numbers) {
      contacts_.add_number(number_kind(field(number.label)), number_field(number.value));
    }
    for (const LabelledAddress& address : columns_.addresses) take(address);
    if (contacts_.empty()) stand_in();
    contacts_.end();
  }

  [[nodiscard]] ConvertedTable write() const { return contacts_.write(); }

 private:
  [[nodiscard]] std::string field(std::size_t column) const {
    return plain_field(fields_, column, delimiter_);
  }

  /// Numbers below each other stay apart.
  [[nodiscard]] std::string number_field(std::size_t column) const {
    if (column >= fields_.size()) return {};
    std::string text(fields_[column]);
    std::replace(text.begin(), text.end(), '|', delimiter_);
    std::replace(text.begin(), text.end(), kKeptCr, ' ');
    return replace_all(text, std::string_view(&kKeptLf, 1), " ::: ");
  }

  void take(const LabelledAddress& address) {
    const AddressKind kind = address_kind(field(address.label));
    std::array<std::string, 4> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) parts.at(i) = field(address.parts.at(i));
    const bool parted = std::any_of(parts.begin(), parts.end(),
                                    [](const std::string& part) { return !part.empty(); });
    if (!parted) parts[0] = field(address.formatted);
    contacts_.set_address(kind, {parts[0], parts[1], parts[2], parts[3]});
  }

  /// A contact of which only other columns are filled, mostly an address of e-mail, is still one.
  void stand_in() {
    const auto filled = std::find_if(fields_.begin(), fields_.end(),
                                     [](std::string_view text) { return !trim(text).empty(); });
    if (filled == fields_.end()) return;
    const auto column = static_cast<std::size_t>(filled - fields_.begin());
    contacts_.set_name(NameField::kDisplay, field(column));
  }

  LabelledColumns columns_;
  char delimiter_;
  Fields fields_;
  ContactSheet contacts_;
};

}  // namespace

bool is_labelled_table(std::string_view header, char delimiter) {
  const Fields fields = split_record(header, delimiter);
  return find_column(fields, "Phone 1 - Value") != kNone &&
         find_column(fields, {"Phone 1 - Label", "Phone 1 - Type"}) != kNone;
}

ConvertedTable sort_by_labels(ConvertedTable table) {
  std::string_view rest = table.text;
  std::string_view record;
  if (!next_part(rest, kCrLf, record)) return table;
  LabelledReader reader(split_record(record, table.delimiter), table.delimiter);
  for (std::size_t i = 1; next_part(rest, kCrLf, record); ++i) {
    if (!record.empty()) reader.take(record, table.lines.line_of(i));
  }
  ConvertedTable sorted = reader.write();
  sorted.losses = std::move(table.losses);
  return sorted;
}

}  // namespace quenda

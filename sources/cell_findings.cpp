#include "sources/cell_findings.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "sources/cell_adaptation.h"
#include "sources/delimited_text.h"
#include "sources/export_layout.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kMostBytes = 8UL * 1024 * 1024;
constexpr std::size_t kLongestHeader = 64UL * 1024;  // a file without line ends has no header

/// Looks at the records of one layout.
class CellCheck {
 public:
  CellCheck(const ExportLayout& layout, char delimiter) : layout_(layout), delimiter_(delimiter) {
    for (const auto& column :
         {layout.last_name, layout.first_name, layout.display_name, layout.company}) {
      last_column_ = std::max(last_column_, column.value_or(0));
    }
    for (const auto& number : layout.numbers) last_column_ = std::max(last_column_, number.column);
    for (const auto& address : layout.addresses) {
      for (const std::size_t part : address.parts) last_column_ = std::max(last_column_, part);
    }
  }

  [[nodiscard]] bool wants_adapting(const RecordTable& records, std::size_t record) {
    fields_.split(records, record, delimiter_, last_column_);
    bool any_number = false;
    for (const auto& number : layout_.numbers) {
      const std::string cell = shown(number.column);
      any_number = any_number || !cell.empty();
      if (is_changed(cell)) return true;
    }
    if (!any_number) return false;
    const std::string last = shown(layout_.last_name);
    const std::string first = shown(layout_.first_name);
    const bool parted = layout_.last_name || layout_.first_name;
    if (parted && trim(last).empty() && trim(first).empty()) {
      const bool stand_in =
          !trim(shown(layout_.display_name)).empty() || !trim(shown(layout_.company)).empty();
      if (stand_in) return true;
    }
    return has_semicolon(last) || has_semicolon(first) || in_an_address();
  }

 private:
  [[nodiscard]] std::string shown(const std::optional<std::size_t>& column) const {
    if (!column || !fields_.has(*column)) return {};
    return shown_field(fields_[*column].text, delimiter_);
  }

  [[nodiscard]] bool is_changed(const std::string& cell) const {
    // Numbers on lines of their own have become one, longer than any is (15 digits behind "00").
    constexpr std::size_t kMostDigits = 17;
    const auto digits = std::count_if(cell.begin(), cell.end(), is_digit);
    if (static_cast<std::size_t>(digits) > kMostDigits) return true;
    if (is_plain_number(cell)) return false;
    const std::vector<std::string> numbers = numbers_in_cell(cell, delimiter_);
    return numbers.size() != 1 || numbers.front() != trim(cell);
  }

  static bool has_semicolon(std::string_view text) { return text.find(';') != text.npos; }

  [[nodiscard]] bool in_an_address() const {
    for (const auto& address : layout_.addresses) {
      for (const std::size_t part : address.parts) {
        if (has_semicolon(shown(part))) return true;
      }
    }
    return false;
  }

  const ExportLayout& layout_;
  char delimiter_;
  std::size_t last_column_ = 0;
  RecordFields fields_;
};

/// The first records of a text, as the reader of delimited text makes them.
RecordTable first_records(std::string_view text, char delimiter) {
  if (text.size() > kMostBytes) {
    text = text.substr(0, kMostBytes);
    text = text.substr(0, text.rfind('\n') + 1);
  }
  std::string copy(text);
  remove_doubled_quotes(copy);
  return build_records(std::move(copy), delimiter, [](std::size_t, std::size_t) {});
}

}  // namespace

bool has_cells_to_adapt(std::string_view text, char delimiter) {
  const std::string_view header = text.substr(0, text.find_first_of("\r\n"));
  if (header.size() > kLongestHeader) return false;
  if (!find_export_layout(shown_fields(header, delimiter))) return false;
  const RecordTable records = first_records(text, delimiter);
  if (records.empty()) return false;
  // The columns of the header as the reader has put it together.
  const auto layout = find_export_layout(shown_fields(records[0], delimiter));
  if (!layout) return false;
  CellCheck check(*layout, delimiter);
  for (std::size_t record = 1; record < records.size(); ++record) {
    if (check.wants_adapting(records, record)) return true;
  }
  return false;
}

}  // namespace quenda

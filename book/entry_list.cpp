#include "book/entry_list.h"

#include <algorithm>
#include <array>
#include <string>

#include "text/conversions.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kShortestName = 3;
constexpr std::size_t kLongestDroppedNumber = 7;

/// The part before the next ";", which is cut off the front of the line with it.
std::string_view next_field(std::string_view& line) {
  const auto at = std::min(line.find(';'), line.size());
  const std::string_view field = line.substr(0, at);
  line.remove_prefix(std::min(at + 1, line.size()));
  return field;
}

/// The field as the list shows it; in the buffer only where a character has to change.
std::string_view shown(std::string_view field, std::string& buffer) {
  if (field.find('|') == field.npos) return trim(field);
  buffer = field;
  std::replace(buffer.begin(), buffer.end(), '|', ',');
  return trim(buffer);
}

}  // namespace

bool number_importable(std::string_view number) {
  return number.size() > kLongestDroppedNumber && is_numeric(number);
}

FlatTable entry_rows(const TextRows& lines, bool suppress_short_names,
                     const std::function<void(std::size_t, std::size_t)>& on_step) {
  FlatTable rows(kEntryColumns);
  rows.reserve(lines.size(), lines.bytes());
  std::string name_buffer;
  std::string address_buffer;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    on_step(i + 1, lines.size());
    std::string_view line = lines[i];
    if (line.find(';') == line.npos) continue;
    const std::string_view name = next_field(line);
    const std::string_view number = next_field(line);
    const std::string_view address = next_field(line);
    if (!number_importable(number)) continue;
    if (suppress_short_names && name.size() < kShortestName) continue;
    rows.add_row(std::array{shown(name, name_buffer), number, shown(address, address_buffer)});
  }
  return rows;
}

}  // namespace quenda

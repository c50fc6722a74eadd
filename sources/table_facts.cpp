#include "sources/table_facts.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "sources/delimited_text.h"
#include "text/text.h"

namespace quenda {
namespace {

bool is_blank(std::string_view record, char delimiter) {
  return std::all_of(record.begin(), record.end(), [&](char c) { return c == delimiter; });
}

bool looks_like_number(std::string_view text) {
  constexpr std::size_t kFewestDigits = 6;
  static constexpr CharacterSet kSigns("0123456789 +-/().");
  const auto digits = static_cast<std::size_t>(std::count_if(text.begin(), text.end(), is_digit));
  return digits >= kFewestDigits &&
         std::all_of(text.begin(), text.end(), [](char c) { return kSigns.contains(c); });
}

void look_at_header(const std::vector<std::string>& header, TableFacts& facts) {
  std::set<std::string_view> names;
  for (const std::string& name : header) {
    if (trim(name).empty()) {
      ++facts.unnamed_columns;
    } else if (!names.insert(name).second && facts.repeated_name.empty()) {
      facts.repeated_name = name;
    }
    if (facts.number_in_header.empty() && looks_like_number(name)) facts.number_in_header = name;
  }
}

}  // namespace

TableFacts look_at_table(const RecordTable& records, char delimiter, bool ends_early) {
  TableFacts facts;
  if (records.empty()) return facts;
  look_at_header(shown_fields(records[0], delimiter), facts);
  const std::size_t wanted = count_of(records[0], delimiter);
  for (std::size_t i = 1; i < records.size(); ++i) {
    std::string_view record = records[i];
    std::size_t own = count_of(record, delimiter);
    if (own == wanted || (ends_early && own < wanted)) continue;
    const bool last = i + 1 == records.size();
    if (last && own == wanted + 1 && record.ends_with(delimiter)) continue;
    if (is_blank(record, delimiter)) continue;
    if (facts.uneven_records++ == 0) facts.first_uneven = i;
  }
  return facts;
}

}  // namespace quenda

#include "sources/file_conversion.h"

#include <algorithm>
#include <string>

#include "sources/contact_sheet.h"
#include "sources/delimited_text.h"
#include "sources/labelled_table.h"
#include "sources/unicode_text.h"
#include "sources/vcard.h"
#include "text/text.h"

namespace quenda {
namespace {

/// How often each delimiter occurs in the first line with something in it, outside of quotes.
DelimiterCounts header_delimiters(std::string_view text) {
  DelimiterCounts counts;
  bool quoted = false;
  for (const char c : text.substr(std::min(text.find_first_not_of("\r\n"), text.size()))) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '\r' || c == '\n') break;
    for (std::size_t i = 0; i < kDelimiters.size(); ++i) {
      if (c == kDelimiters.at(i)) ++counts.of.at(i);
    }
  }
  return counts;
}

}  // namespace

char conversion_delimiter(std::string_view bytes, const FileFacts& facts) {
  if (facts.kind == FileKind::kVcard) return ContactSheet::kDelimiter;
  if (facts.sep_delimiter != 0) return facts.sep_delimiter;
  constexpr std::size_t kLongestHeader = 64UL * 1024;
  std::string decoded;
  std::string_view beginning = bytes.substr(0, kLongestHeader);
  if (facts.is_utf16()) {
    decoded = utf16_to_utf8(beginning, facts.encoding == FileEncoding::kUtf16Big);
    beginning = decoded;
  }
  if (facts.sep_line) {
    // It names a delimiter that the tool does not know; the header stands behind it.
    const auto end = beginning.find_first_of("\r\n");
    beginning.remove_prefix(std::min(end, beginning.size()));
  }
  int chosen = choose_delimiter(header_delimiters(beginning));
  if (chosen < 0) chosen = choose_delimiter(count_delimiters(bytes));
  return chosen < 0 ? '\0' : kDelimiters.at(static_cast<std::size_t>(chosen));
}

ConvertedTable convert_file(std::string_view bytes, const FileFacts& facts, char delimiter,
                            const std::function<void()>& on_step) {
  if (facts.kind == FileKind::kVcard) return read_vcards(bytes, facts, on_step);
  ConvertedTable table = convert_table(bytes, facts, delimiter, on_step);
  const std::string_view header = std::string_view(table.text).substr(0, table.text.find(kCrLf));
  if (is_labelled_table(header, delimiter)) return sort_by_labels(std::move(table));
  return table;
}

}  // namespace quenda

#include "app/account/source_numbers.h"

#include <string>

#include "app/account/shown_number.h"
#include "book/entry_list.h"
#include "sources/ispy_log.h"
#include "text/conversions.h"
#include "text/entry_origin.h"
#include "text/entry_text.h"
#include "text/text.h"

namespace quenda {
namespace {

/// Other items of the folder, as lists of recipients, have a row without any text: names and
/// addresses of nothing but what joins their parts.
bool is_no_contact(const ContactTable& contacts, std::size_t row) {
  return contacts.line(row).find_first_not_of("; ") == std::string_view::npos;
}

}  // namespace

std::size_t walk_call_log(const RecordTable& lines, const SourceLines& source_lines,
                          std::string_view delimiter, const OnSourceNumber& on_number) {
  ShownNumber shown;
  std::size_t count = 0;
  std::uint32_t composed = 0;
  for (std::size_t at = 0; at < lines.size(); ++at) {
    const std::string_view line = lines[at];
    if (line.empty() || line == delimiter) continue;
    ++count;
    const IspyLine caller = read_ispy_line(line);
    const std::string name = without_line_breaks(caller.name);
    SourceNumber number = shown.make(caller.number, caller.number, name, "");
    number.line = source_lines.line_of(at);
    number.record = count;
    number.row = caller.number.empty() ? 0 : 1;
    number.origin = entry_origin(at, static_cast<std::size_t>(number.row));
    if (caller.number.empty()) {
      number.fate = Fate::kNoNumber;
    } else if (!is_numeric(caller.number)) {
      number.fate = Fate::kNotNumeric;
    } else if (!caller.well_formed || !usable_caller_name(caller.name)) {
      number.fate = Fate::kNoName;
    } else if (has_separator(caller.name)) {
      number.fate = Fate::kSplit;
    }
    if (!number.fate || number.fate == Fate::kSplit) number.composed = composed++;
    on_number(number);
  }
  return count;
}

std::size_t walk_contacts(const ContactTable& contacts, const OutlookChoice& choice,
                          const CleanNumber& clean, bool suppress_short_names,
                          const OnSourceNumber& on_number) {
  ShownNumber shown;
  std::size_t count = 0;
  const FlatTable rows = preview_rows(contacts, choice);
  std::size_t next = 0;
  std::string cleaned;
  for (std::size_t at = 0; at < contacts.rows(); ++at) {
    if (is_no_contact(contacts, at)) continue;
    bool any = false;
    ++count;
    for (; next < rows.rows() && record_of(rows.origin(next)) == at; ++next) {
      any = true;
      const std::string_view raw = rows.cell(next, kEntryNumber);
      clean(raw, cleaned);
      const std::string_view name = rows.cell(next, kEntryName);
      SourceNumber number = shown.make(raw, cleaned, name, rows.cell(next, kEntryAddress));
      number.record = count;
      number.row = static_cast<int>(row_of(rows.origin(next)));
      number.origin = rows.origin(next);
      number.composed = static_cast<std::uint32_t>(next);
      number.fate = fate_before_merge(cleaned, is_numeric(cleaned), name, suppress_short_names);
      on_number(number);
    }
    if (any) continue;
    SourceNumber number = shown.make("", "", contact_name(contacts, at, choice.flip_name), "");
    number.record = count;
    number.origin = entry_origin(at, 0);
    number.fate = Fate::kNoNumber;
    on_number(number);
  }
  return count;
}

}  // namespace quenda

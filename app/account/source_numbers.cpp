#include "app/account/source_numbers.h"

#include <algorithm>
#include <string>

#include "book/entry_list.h"
#include "sources/cell_adaptation.h"
#include "sources/delimited_text.h"
#include "sources/ispy_log.h"
#include "sources/kept_breaks.h"
#include "text/conversions.h"
#include "text/entry_origin.h"
#include "text/entry_text.h"
#include "text/text.h"

namespace quenda {
namespace {

/// The texts of one number, as the final list shows them.
class ShownNumber {
 public:
  SourceNumber make(std::string_view raw, std::string_view number, std::string_view name,
                    std::string_view address) {
    entry_ = concat(name, ";", number, ";", address);
    name_ = with_commas(name);
    // A ";" in the address cuts it off there, as a split of the entry's line does.
    address_ = with_commas(address.substr(0, address.find(';')));
    SourceNumber made;
    made.raw = raw;
    made.number = number;
    made.name = trim(name_);
    made.address = trim(address_);
    made.entry = entry_;
    return made;
  }

 private:
  static std::string with_commas(std::string_view text) {
    std::string shown(text);
    std::replace(shown.begin(), shown.end(), '|', ',');
    return shown;
  }

  std::string entry_;
  std::string name_;
  std::string address_;
};

bool has_separator(std::string_view text) { return text.find(';') != text.npos; }

/// Why a number of a file or of Outlook gives no entry. The order counts: the first reason holds.
std::optional<Fate> fate_before_merge(std::string_view number, bool numeric, std::string_view name,
                                      bool suppress_short_names) {
  if (!numeric) return Fate::kNotNumeric;
  if (has_separator(name)) return Fate::kSplit;
  if (!number_importable(number)) return Fate::kTooShort;
  if (suppress_short_names && name_too_short(name)) return Fate::kShortName;
  return std::nullopt;
}

/// Whether the header counts as a record with this number: only where it would give an entry.
bool header_counts(const std::optional<Fate>& fate) { return !fate || *fate == Fate::kSplit; }

/// A cell of the table as the file has it: what the cleaning did to a quoted one is taken back.
std::string cell_of_file(std::string_view field, char delimiter, bool adapted) {
  const std::string shown = shown_field(field, delimiter);
  return adapted ? with_line_breaks(shown) : shown;
}

/// The numbers of records that nothing was composed of. They are looked at without composing, since
/// that is what failed.
class UnreadRecords {
 public:
  UnreadRecords(const RecordTable& records, char delimiter, const Composition& composition)
      : records_(records), delimiter_(delimiter), composition_(composition) {
    for (const std::size_t column : composition.columns.numbers) last_ = std::max(last_, column);
  }

  /// `number` has the place of the record; each of its numbers is told with the rest.
  void tell(std::size_t at, SourceNumber number, const OnSourceNumber& on_number) {
    const std::vector<std::size_t>& columns = composition_.columns.numbers;
    fields_.split(records_, at, delimiter_, last_);
    number.fate = Fate::kUnread;
    bool any = false;
    for (std::size_t row = 0; row < std::min(columns.size(), kNumberRows); ++row) {
      if (!fields_.has(columns[row])) continue;
      const std::string cell = replace_all(fields_[columns[row]].text, "\"", "");
      if (cell.empty()) continue;
      const std::string raw =
          cell_of_file(fields_[columns[row]].text, delimiter_, composition_.adapt);
      number.raw = raw;
      number.row = static_cast<int>(row) + 1;
      number.origin = entry_origin(at, row + 1);
      std::size_t numbers = composition_.adapt ? numbers_in_cell(cell, delimiter_).size() : 1;
      for (; numbers > 0; --numbers) {
        any = true;
        on_number(number);
      }
    }
    if (any) return;
    number.origin = entry_origin(at, 0);
    number.fate = Fate::kNoNumber;
    on_number(number);
  }

 private:
  const RecordTable& records_;
  char delimiter_;
  const Composition& composition_;
  std::size_t last_ = 0;
  RecordFields fields_;
};

bool only_delimiters(std::string_view record, char delimiter) {
  return record.find_first_not_of(delimiter) == record.npos;
}

}  // namespace

std::size_t walk_file(const RecordTable& records, const SourceLines& source_lines, char delimiter,
                      const Composition& composition, const CleanNumber& clean,
                      bool suppress_short_names, std::size_t until,
                      const OnSourceNumber& on_number) {
  EntryComposer composer(composition, delimiter, clean);
  FlatTable unused(kEntryColumns);
  ShownNumber shown;
  std::size_t count = 0;
  bool any = false;
  std::size_t at = 0;
  std::string raw;
  composer.on_number = [&](const NumberSeen& seen) {
    const bool changed = composition.adapt || seen.raw.find('"') != seen.raw.npos;
    if (changed) raw = cell_of_file(seen.raw, delimiter, composition.adapt);
    SourceNumber number =
        shown.make(changed ? raw : seen.raw, seen.number, seen.name, seen.address);
    number.fate = fate_before_merge(seen.number, seen.numeric, seen.name, suppress_short_names);
    if (at == 0 && !header_counts(number.fate)) return;
    any = true;
    number.line = source_lines.line_of(at);
    number.record = at == 0 ? 0 : count;
    number.row = static_cast<int>(seen.row) + 1;
    number.origin = entry_origin(at, seen.row + 1);
    on_number(number);
  };
  const std::size_t end = std::min(until, records.size());
  for (; at < end; ++at) {
    if (at > 0 && only_delimiters(records[at], delimiter)) continue;
    if (at > 0) ++count;
    any = false;
    unused.clear();
    composer.compose(records, at, unused);
    if (any || at == 0) continue;
    SourceNumber number = shown.make("", "", composer.name(), "");
    number.line = source_lines.line_of(at);
    number.record = count;
    number.origin = entry_origin(at, 0);
    number.fate = Fate::kNoNumber;
    on_number(number);
  }
  UnreadRecords unread(records, delimiter, composition);
  for (; at < records.size(); ++at) {
    if (at == 0 || only_delimiters(records[at], delimiter)) continue;
    SourceNumber number = shown.make("", "", "", "");
    number.line = source_lines.line_of(at);
    number.record = ++count;
    unread.tell(at, number, on_number);
  }
  return count;
}

std::size_t walk_call_log(const RecordTable& lines, const SourceLines& source_lines,
                          std::string_view delimiter, const OnSourceNumber& on_number) {
  ShownNumber shown;
  std::size_t count = 0;
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
    bool any = false;
    ++count;
    for (; next < rows.rows() && rows.origin(next) >> kOriginRowBits == at; ++next) {
      any = true;
      const std::string_view raw = rows.cell(next, kEntryNumber);
      clean(raw, cleaned);
      const std::string_view name = rows.cell(next, kEntryName);
      SourceNumber number = shown.make(raw, cleaned, name, rows.cell(next, kEntryAddress));
      number.record = count;
      number.row = static_cast<int>(rows.origin(next) & ((1U << kOriginRowBits) - 1));
      number.origin = rows.origin(next);
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

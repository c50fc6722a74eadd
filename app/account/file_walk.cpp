#include "app/account/file_walk.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "app/account/shown_number.h"
#include "book/entry_list.h"
#include "sources/cell_adaptation.h"
#include "sources/delimited_text.h"
#include "sources/kept_breaks.h"
#include "text/entry_origin.h"
#include "text/flat_table.h"
#include "text/text.h"

namespace quenda {
namespace {

/// Whether the header counts as a record with this number: only where it would give an entry.
bool header_counts(const std::optional<Fate>& fate) { return !fate || *fate == Fate::kSplit; }

/// A cell of the table as the file has it: what the cleaning did to a quoted one is taken back.
std::string cell_of_file(std::string_view field, char delimiter, bool adapted) {
  const std::string shown = shown_field(field, delimiter);
  return adapted ? with_line_breaks(shown) : shown;
}

/// Whether the file has a cell in other letters than the table.
bool differs_in_file(std::string_view field, bool adapted) {
  static constexpr CharacterSet kChanged("\"|\x0E\x0F");
  if (!adapted) return field.find('"') != field.npos;
  return std::any_of(field.begin(), field.end(), [](char c) { return kChanged.contains(c); });
}

/// The last of the number columns.
std::size_t last_number_column(const Composition& composition) {
  std::size_t last = 0;
  for (const std::size_t column : composition.columns.numbers) last = std::max(last, column);
  return last;
}

/// The numbers of records that nothing was composed of. They are looked at without composing, since
/// that is what failed.
class UnreadRecords {
 public:
  explicit UnreadRecords(const ComposedFile& file)
      : file_(file), last_(last_number_column(file.composition)) {}

  /// `number` has the place of the record; each of its numbers is told with the rest.
  void tell(std::size_t at, SourceNumber number, const OnSourceNumber& on_number) {
    const std::vector<std::size_t>& columns = file_.composition.columns.numbers;
    const bool adapt = file_.composition.adapt;
    fields_.split(file_.records, at, file_.delimiter, last_);
    number.fate = Fate::kUnread;
    bool any = false;
    for (std::size_t row = 0; row < std::min(columns.size(), kNumberRows); ++row) {
      if (!fields_.has(columns[row])) continue;
      const std::string cell = replace_all(fields_[columns[row]].text, "\"", "");
      if (cell.empty()) continue;
      const std::string raw = cell_of_file(fields_[columns[row]].text, file_.delimiter, adapt);
      number.raw = raw;
      number.row = static_cast<int>(row) + 1;
      number.origin = entry_origin(at, row + 1);
      std::size_t numbers = adapt ? numbers_in_cell(cell, file_.delimiter).size() : 1;
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
  const ComposedFile& file_;
  std::size_t last_;
  RecordFields fields_;
};

/// The numbers of records that the final list shows: only what the list does not know is looked up.
class ListedRecords {
 public:
  ListedRecords(const ComposedFile& file, ListRows& listed)
      : file_(file), listed_(listed), last_(last_number_column(file.composition)) {}

  /// Whether every number of the record stands in the list, and it has one. A ";" that does not
  /// separate may break the entry's line, which the list does not show.
  bool look_at(std::size_t at) {
    const Composition& composition = file_.composition;
    const std::vector<std::size_t>& columns = composition.columns.numbers;
    found_ = 0;
    if (file_.delimiter != ';' && has_separator(file_.records[at])) return false;
    fields_.split(file_.records, at, file_.delimiter, last_);
    listed_.begin_record(at);
    for (std::size_t row = 0; row < std::min(columns.size(), kNumberRows); ++row) {
      if (!fields_.has(columns[row])) return false;
      const std::string_view cell = fields_[columns[row]].text;
      if (cell.find_first_not_of('"') == cell.npos) continue;
      if (composition.adapt && !is_plain_number(cell)) return false;
      if (!listed_.has(entry_origin(at, row + 1))) return false;
      rows_.at(found_++) = row;
    }
    return found_ > 0;
  }
  [[nodiscard]] std::size_t count() const { return found_; }

  /// Which of the number columns the record's n-th number stands in, and the cell.
  [[nodiscard]] std::size_t row(std::size_t n) const { return rows_.at(n); }
  [[nodiscard]] std::string_view cell(std::size_t n) const {
    return fields_[file_.composition.columns.numbers[row(n)]].text;
  }

 private:
  const ComposedFile& file_;
  ListRows& listed_;
  std::size_t last_;
  RecordFields fields_;
  std::array<std::size_t, kNumberRows> rows_{};
  std::size_t found_ = 0;
};

bool only_delimiters(std::string_view record, char delimiter) {
  return record.find_first_not_of(delimiter) == record.npos;
}

/// The walk over a delimited file.
class FileWalk {
 public:
  FileWalk(const ComposedFile& file, ListRows& listed, const OnSourceNumber& on_number)
      : file_(file),
        on_number_(on_number),
        listed_(file, listed),
        unread_(file),
        composer_(file.composition, file.delimiter, file.clean) {
    composer_.on_number = [this](const NumberSeen& seen) { take(seen); };
  }

  std::size_t run() {
    const std::size_t size = file_.records.size();
    for (at_ = 0; at_ < size; ++at_) {
      if (at_ > 0 && only_delimiters(file_.records[at_], file_.delimiter)) continue;
      if (at_ > 0) ++count_;
      if (at_ >= file_.until) {
        if (at_ > 0) unread_.tell(at_, placed(shown_.make("", "", "", "")), on_number_);
      } else if (at_ > 0 && listed_.look_at(at_)) {
        tell_listed();
      } else {
        compose();
      }
    }
    return count_;
  }

 private:
  [[nodiscard]] SourceNumber placed(SourceNumber number) const {
    number.line = file_.lines.line_of(at_);
    number.record = count_;
    return number;
  }

  void tell(SourceNumber number, std::size_t row, std::string_view cell) {
    if (differs_in_file(cell, file_.composition.adapt)) {
      raw_ = cell_of_file(cell, file_.delimiter, file_.composition.adapt);
      cell = raw_;
    }
    number.raw = cell;
    number.row = static_cast<int>(row) + 1;
    number.origin = entry_origin(at_, row + 1);
    on_number_(placed(number));
  }

  void tell_listed() {
    for (std::size_t n = 0; n < listed_.count(); ++n) {
      SourceNumber number;
      number.composed = composed_++;
      tell(number, listed_.row(n), listed_.cell(n));
    }
  }

  void compose() {
    any_ = false;
    unused_.clear();
    composer_.compose(file_.records, at_, unused_);
    if (any_ || at_ == 0) return;
    SourceNumber number = placed(shown_.make("", "", composer_.name(), ""));
    number.origin = entry_origin(at_, 0);
    number.fate = Fate::kNoNumber;
    on_number_(number);
  }

  void take(const NumberSeen& seen) {
    SourceNumber number = shown_.make("", seen.number, seen.name, seen.address);
    number.fate =
        fate_before_merge(seen.number, seen.numeric, seen.name, file_.suppress_short_names);
    if (seen.numeric) number.composed = composed_++;
    if (at_ == 0 && !header_counts(number.fate)) return;
    any_ = true;
    tell(number, seen.row, seen.raw);
  }

  const ComposedFile& file_;
  const OnSourceNumber& on_number_;
  ListedRecords listed_;
  UnreadRecords unread_;
  EntryComposer composer_;
  FlatTable unused_{kEntryColumns};
  ShownNumber shown_;
  std::string raw_;
  std::size_t at_ = 0;
  std::size_t count_ = 0;       // of records
  std::uint32_t composed_ = 0;  // of rows
  bool any_ = false;            // the record at hand has a number
};

}  // namespace

std::size_t walk_file(const ComposedFile& file, ListRows& listed, const OnSourceNumber& on_number) {
  return FileWalk(file, listed, on_number).run();
}

std::string number_in_file(const RecordTable& records, std::uint32_t origin, char delimiter,
                           const Composition& composition, const CleanNumber& clean,
                           std::string_view number) {
  const std::size_t column = composition.columns.numbers.at(row_of(origin) - 1);
  RecordFields fields;
  fields.split(records, record_of(origin), delimiter, column);
  if (!fields.has(column)) return std::string(number);
  const std::string_view field = fields[column].text;
  std::vector<std::string> parts = {cell_of_file(field, delimiter, composition.adapt)};
  if (composition.adapt) parts = numbers_in_cell(replace_all(field, "\"", ""), delimiter);
  std::string cleaned;
  for (std::string& part : parts) {
    clean(replace_all(part, "\"", ""), cleaned);
    if (cleaned == number) return std::move(part);
  }
  return std::string(number);
}

}  // namespace quenda

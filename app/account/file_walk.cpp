#include "app/account/file_walk.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "app/account/number_cells.h"
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

/// The numbers of records that nothing was composed of. They are looked at without composing, since
/// that is what failed.
class UnreadRecords {
 public:
  explicit UnreadRecords(const ComposedFile& file)
      : file_(file), cells_(file.records, file.delimiter, file.composition.columns.numbers) {}

  /// `number` has the place of the record; each of its numbers is told with the rest.
  void tell(std::size_t at, SourceNumber number, const OnSourceNumber& on_number) {
    const bool adapt = file_.composition.adapt;
    cells_.find(at);
    number.fate = Fate::kUnread;
    bool any = false;
    for (std::size_t row = 0; row < cells_.columns(); ++row) {
      const auto field = cells_[row];
      if (!field) continue;
      const std::string cell = replace_all(*field, "\"", "");
      if (cell.empty()) continue;
      const std::string raw = cell_of_file(*field, file_.delimiter, adapt);
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
  NumberCells cells_;
};

/// The numbers of records that the final list shows: only what the list does not know is looked up.
class ListedRecords {
 public:
  ListedRecords(const ComposedFile& file, ListRows& listed)
      : file_(file),
        listed_(listed),
        cells_(file.records, file.delimiter, file.composition.columns.numbers) {}

  /// Whether every number of the record stands in the list, and it has one. A ";" that does not
  /// separate may break the entry's line, which the list does not show.
  bool look_at(std::size_t at) {
    found_ = 0;
    if (file_.delimiter != ';' && has_separator(file_.records[at])) return false;
    cells_.find(at);
    listed_.begin_record(at);
    for (std::size_t row = 0; row < cells_.columns(); ++row) {
      const auto cell = cells_[row];
      if (!cell) return false;
      if (cell->find_first_not_of('"') == cell->npos) continue;
      if (file_.composition.adapt && !is_plain_number(*cell)) return false;
      if (!listed_.has(entry_origin(at, row + 1))) return false;
      numbers_[found_++] = {row, *cell};
    }
    return found_ > 0;
  }

  /// A number of the record: which of the number columns it stands in, and the cell.
  struct Number {
    std::size_t row = 0;
    std::string_view cell;
  };
  [[nodiscard]] std::span<const Number> numbers() const {
    return std::span(numbers_).first(found_);
  }

 private:
  const ComposedFile& file_;
  ListRows& listed_;
  NumberCells cells_;
  std::array<Number, kNumberRows> numbers_;
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
        if (at_ > 0) tell_unread();
      } else if (at_ > 0 && listed_.look_at(at_)) {
        tell_listed();
      } else {
        compose();
      }
    }
    return count_;
  }

 private:
  void place(SourceNumber& number) const {
    number.line = file_.lines.line_of(at_);
    number.record = count_;
  }

  void tell(SourceNumber& number, std::size_t row, std::string_view cell) {
    if (differs_in_file(cell, file_.composition.adapt)) {
      raw_ = cell_of_file(cell, file_.delimiter, file_.composition.adapt);
      cell = raw_;
    }
    number.raw = cell;
    number.row = static_cast<int>(row) + 1;
    number.origin = entry_origin(at_, row + 1);
    place(number);
    on_number_(number);
  }

  void tell_listed() {
    for (const ListedRecords::Number& listed : listed_.numbers()) {
      listed_number_.composed = composed_++;
      tell(listed_number_, listed.row, listed.cell);
    }
  }

  void tell_unread() {
    SourceNumber number;
    place(number);
    unread_.tell(at_, number, on_number_);
  }

  void compose() {
    any_ = false;
    unused_.clear();
    composer_.compose(file_.records, at_, unused_);
    if (any_ || at_ == 0) return;
    SourceNumber number = shown_.make("", "", composer_.name(), "");
    number.origin = entry_origin(at_, 0);
    number.fate = Fate::kNoNumber;
    place(number);
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
  SourceNumber listed_number_;  // without texts and fate, as of all that the list shows
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

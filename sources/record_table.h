#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text/fault.h"

namespace quenda {

/// The records of a delimited file or the lines of a log: one text and the places where its records
/// begin, so that a million records cost no copies. Record 0 of a delimited file is the header.
class RecordTable {
 public:
  RecordTable() = default;
  /// Records that lie in `text` one CR LF apart; `starts` has one more entry than there are
  /// records, as if another record followed the last.
  RecordTable(std::shared_ptr<const std::string> text, std::vector<std::size_t> starts);

  [[nodiscard]] std::size_t size() const { return starts_.empty() ? 0 : starts_.size() - 1; }
  [[nodiscard]] bool empty() const { return size() == 0; }
  /// Bytes of all records and the line breaks between them.
  [[nodiscard]] std::size_t bytes() const { return starts_.empty() ? 0 : starts_.back(); }
  /// The record as it stands in the text, without what padding added. Fault 9 beyond the end.
  [[nodiscard]] std::string_view operator[](std::size_t record) const {
    return from(record).substr(0, starts_[record + 1] - kLineBreak - starts_[record]);
  }
  /// The whole text from the record's beginning on. Fault 9 beyond the end.
  [[nodiscard]] std::string_view from(std::size_t record) const {
    if (record >= size()) raise_fault(kFaultIndexRange);
    return std::string_view(*text_).substr(starts_[record]);
  }

  /// Gives the records before `until` at least `delimiters` delimiters. Nothing is copied: fields
  /// beyond a record's own text are then empty instead of missing.
  void pad(std::size_t delimiters, std::size_t until);
  /// How many delimiters padding guarantees for a record.
  [[nodiscard]] std::size_t padded_delimiters(std::size_t record) const {
    return record < padded_until_ ? padding_ : 0;
  }
  /// The record with the delimiters that padding added.
  [[nodiscard]] std::string padded_text(std::size_t record, char delimiter) const;

 private:
  static constexpr std::size_t kLineBreak = 2;  // bytes between records

  std::shared_ptr<const std::string> text_;
  std::vector<std::size_t> starts_;
  std::size_t padding_ = 0;
  std::size_t padded_until_ = 0;
};

/// A field as it stands in its record.
struct RecordField {
  std::string_view text;
  std::uint32_t quotes = 0;  // how many it has
  bool breaks = false;       // it has line breaks, or halves of them

  [[nodiscard]] bool plain() const { return quotes == 0 && !breaks; }
};

/// The fields of one record, split as far as asked for.
class RecordFields {
 public:
  /// Splits the record up to the field at position `last`.
  void split(const RecordTable& table, std::size_t record, char delimiter, std::size_t last);
  /// The field at a position from 0; fault 9 when the record has no such field.
  [[nodiscard]] const RecordField& operator[](std::size_t position) const;
  [[nodiscard]] bool has(std::size_t position) const {
    return position < count_ || position <= padded_;
  }
  /// Whether the record, padding included, contains the delimiter.
  [[nodiscard]] bool has_delimiter() const { return has_delimiter_; }

 private:
  std::vector<RecordField> fields_;  // more than the record has, where others had more
  std::size_t count_ = 0;
  std::size_t padded_ = 0;
  bool has_delimiter_ = false;
};

}  // namespace quenda

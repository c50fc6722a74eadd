#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "book/removed_rows.h"
#include "text/entry_origin.h"
#include "text/flat_table.h"

namespace quenda {

/// The rows of the final list beside a walk over the source, whose order they have. What the user
/// took out of the list is missing in it.
class ListRows {
 public:
  ListRows(const FlatTable& list, const RemovedRows& removed) : list_(list), removed_(removed) {
    go_to(0);
  }

  [[nodiscard]] const FlatTable& list() const { return list_; }
  /// The walk comes to a record; what is left of those before goes by.
  void begin_record(std::size_t record) { skip_to(entry_origin(record, 0)); }
  /// Whether one of the record's rows was made of that number.
  [[nodiscard]] bool has(std::uint32_t origin) const {
    if (next_origin_ == origin) return next_ < list_.rows();
    for (std::size_t row = next_; row < list_.rows() && list_.origin(row) <= origin; ++row) {
      if (list_.origin(row) == origin) return true;
    }
    return false;
  }
  /// The row made of that number, if the list has one; asked once for each number that the list was
  /// made of. Numbers of one cell have one origin, and a row each.
  std::optional<std::size_t> take(std::uint32_t origin) {
    nth_ = origin == taken_ ? nth_ + 1 : 0;
    taken_ = origin;
    if (removed_.has(origin, nth_)) return std::nullopt;
    skip_to(origin);
    if (next_ == list_.rows() || next_origin_ != origin) return std::nullopt;
    const std::size_t row = next_;
    go_to(row + 1);
    return row;
  }

 private:
  void skip_to(std::uint32_t origin) {
    while (next_ < list_.rows() && next_origin_ < origin) go_to(next_ + 1);
  }
  void go_to(std::size_t row) {
    next_ = row;
    if (row < list_.rows()) next_origin_ = list_.origin(row);
  }

  const FlatTable& list_;
  const RemovedRows& removed_;
  std::size_t next_ = 0;
  std::uint32_t next_origin_ = 0;       // while there is a next row
  std::optional<std::uint32_t> taken_;  // the origin asked for last
  std::size_t nth_ = 0;                 // of the numbers with that origin, from 0
};

}  // namespace quenda

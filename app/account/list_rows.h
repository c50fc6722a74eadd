#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "text/entry_origin.h"
#include "text/flat_table.h"

namespace quenda {

/// The rows of the final list beside a walk over the source, whose order they have. What the user
/// took out of the list is missing in it.
class ListRows {
 public:
  explicit ListRows(const FlatTable& list) : list_(list) {}

  [[nodiscard]] const FlatTable& list() const { return list_; }
  /// The walk comes to a record; what is left of those before goes by.
  void begin_record(std::size_t record) { skip_to(entry_origin(record, 0)); }
  /// Whether one of the record's rows was made of that number.
  [[nodiscard]] bool has(std::uint32_t origin) const {
    for (std::size_t row = next_; row < list_.rows() && list_.origin(row) <= origin; ++row) {
      if (list_.origin(row) == origin) return true;
    }
    return false;
  }
  /// The row made of that number, if the list has one. Numbers of one cell have one origin, and a
  /// row each.
  std::optional<std::size_t> take(std::uint32_t origin) {
    skip_to(origin);
    if (next_ == list_.rows() || list_.origin(next_) != origin) return std::nullopt;
    return next_++;
  }

 private:
  void skip_to(std::uint32_t origin) {
    while (next_ < list_.rows() && list_.origin(next_) < origin) ++next_;
  }

  const FlatTable& list_;
  std::size_t next_ = 0;
};

}  // namespace quenda

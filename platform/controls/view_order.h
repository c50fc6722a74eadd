#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quenda {

/// The order in which the rows of a table are looked at; the rows keep their own. Positions and
/// rows count from 0.
class ViewOrder {
 public:
  /// The column that the rows are sorted by.
  struct Key {
    std::size_t column = 0;
    bool descending = false;
    friend bool operator==(const Key&, const Key&) = default;
  };

  /// As the rows are.
  void reset();
  /// By the texts of a column, letter case and accents aside; equal ones stay as they are. The same
  /// column again turns the order round, and a third time leads back to that of the rows.
  void sort_by(std::size_t column, std::size_t rows,
               const std::function<std::string(std::size_t row)>& text);
  /// By the same column in the same direction, whose texts are others now.
  void sort_again(std::size_t rows, const std::function<std::string(std::size_t row)>& text);
  void row_added(std::size_t row);
  void row_removed(std::size_t row);

  [[nodiscard]] const std::optional<Key>& key() const { return key_; }
  [[nodiscard]] std::size_t row_at(std::size_t position) const;
  [[nodiscard]] std::size_t position_of(std::size_t row) const;

 private:
  std::optional<Key> key_;
  std::vector<std::size_t> rows_;  // by position; empty while the rows are in their own order
};

}  // namespace quenda

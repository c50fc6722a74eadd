#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quenda {

/// A list of texts in one buffer. Views into it are good until it is changed.
class TextRows {
 public:
  [[nodiscard]] std::size_t size() const { return ends_.size(); }
  [[nodiscard]] bool empty() const { return ends_.empty(); }
  /// Bytes of all rows together.
  [[nodiscard]] std::size_t bytes() const { return end_of_last(); }
  void reserve(std::size_t rows, std::size_t bytes);
  void clear();

  /// The row at a position from 0.
  [[nodiscard]] std::string_view operator[](std::size_t row) const {
    const std::size_t start = row == 0 ? 0 : ends_[row - 1];
    return {text_.data() + start, ends_[row] - start};
  }

  void add_row(std::string_view row) {
    append(row);
    end_row();
  }
  /// Adds to the row being built, which becomes a row of the list with `end_row`.
  void append(std::string_view piece) { text_.append(piece); }
  void append(char character) { text_ += character; }
  void end_row() { ends_.push_back(text_.size()); }

 private:
  [[nodiscard]] std::size_t end_of_last() const { return ends_.empty() ? 0 : ends_.back(); }

  std::string text_;
  std::vector<std::size_t> ends_;
};

}  // namespace quenda

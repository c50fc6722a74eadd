#pragma once

#include <cstddef>
#include <cstring>
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

  /// Drops every row for which `keep(row, position)` is false, in place and in one pass; the others
  /// stay in their order. `keep` gets each row, from the first to the last, and the position that
  /// it would have; the rows before that position are the ones kept so far.
  template <class Keep>
  void keep_rows(Keep keep);

 private:
  [[nodiscard]] std::size_t end_of_last() const { return ends_.empty() ? 0 : ends_.back(); }

  std::string text_;
  std::vector<std::size_t> ends_;
};

template <class Keep>
void TextRows::keep_rows(Keep keep) {
  std::size_t kept = 0;
  std::size_t written = 0;
  std::size_t start = 0;
  for (const std::size_t end : ends_) {
    if (keep(std::string_view(text_.data() + start, end - start), kept)) {
      if (written != start) std::memmove(text_.data() + written, text_.data() + start, end - start);
      written += end - start;
      ends_[kept++] = written;
    }
    start = end;
  }
  text_.resize(written);
  ends_.resize(kept);
}

}  // namespace quenda

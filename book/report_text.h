#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "book/report_cells.h"

namespace quenda {

/// The text of a report, which grows row by row. Rows are written straight into its room.
class ReportText {
 public:
  [[nodiscard]] std::string_view text() const { return std::string_view(buffer_).substr(0, used_); }
  [[nodiscard]] std::size_t size() const { return used_; }

  /// Where so many bytes can be written behind the text; good until room is asked for again.
  [[nodiscard]] char* room(std::size_t bytes) {
    if (buffer_.size() - used_ < bytes) buffer_.resize(used_ + std::max(used_ / 4, bytes));
    return buffer_.data() + used_;
  }
  /// What was written there is the text's new end.
  void end_at(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.data()); }

  void add(std::string_view text) {
    char* const to = room(text.size());
    end_at(std::copy(text.begin(), text.end(), to));
  }
  void clear() { used_ = 0; }

  // What the rows count up.
  CountedNumber line;
  CountedNumber record;
  CountedNumber column;

 private:
  std::string buffer_;  // with room behind what is used of it
  std::size_t used_ = 0;
};

}  // namespace quenda

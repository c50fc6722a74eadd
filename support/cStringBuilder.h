#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace quenda {

/// A text that grows piece by piece. Other programs of the suite use it; this one does not.
class cStringBuilder {
 public:
  cStringBuilder& Append(std::string_view piece) {
    text_.append(piece);
    return *this;
  }
  [[nodiscard]] const std::string& text() const { return text_; }
  /// Hands the text out and starts again with an empty one.
  std::string take() { return std::exchange(text_, {}); }

 private:
  std::string text_;
};

}  // namespace quenda

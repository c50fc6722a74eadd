#include "sources/source_lines.h"

namespace quenda {
namespace {

/// Counts the lines of a text up to places in it, which come in rising order.
class LineCounter {
 public:
  explicit LineCounter(std::string_view text) : text_(text) {}

  std::size_t line_at(std::size_t place) {
    for (; at_ < place; ++at_) {
      const char c = text_[at_];
      const bool before_lf = at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
      if (c == '\n' || (c == '\r' && !before_lf)) ++line_;
    }
    return line_;
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

}  // namespace

SourceLines lines_at(std::string_view text, const std::vector<std::size_t>& begins) {
  SourceLines lines;
  LineCounter counter(text);
  for (std::size_t i = 0; i < begins.size(); ++i) {
    lines.begin_record(i + 1, counter.line_at(begins[i]));
  }
  return lines;
}

}  // namespace quenda

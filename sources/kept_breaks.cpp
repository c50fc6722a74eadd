#include "sources/kept_breaks.h"

namespace quenda {

std::string with_line_breaks(std::string_view field) {
  std::string text(field);
  for (char& c : text) {
    if (c == kKeptCr) c = '\r';
    if (c == kKeptLf) c = '\n';
  }
  return text;
}

std::string in_one_line(std::string_view field) {
  std::string text;
  text.reserve(field.size());
  for (std::size_t at = 0; at < field.size(); ++at) {
    if (!is_kept_break(field[at])) {
      text += field[at];
    } else if (field[at] != kKeptLf || at == 0 || field[at - 1] != kKeptCr) {
      text += ' ';
    }
  }
  return text;
}

}  // namespace quenda

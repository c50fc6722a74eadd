#include "text/entry_text.h"

#include <algorithm>

#include "text/text.h"

namespace quenda {

std::string without_line_breaks(std::string_view text) {
  std::string result = replace_all(text, kCrLf, " ");
  std::replace(result.begin(), result.end(), '\r', ' ');
  std::replace(result.begin(), result.end(), '\n', ' ');
  return result;
}

std::string entry_text(std::string_view text) {
  std::string result = without_line_breaks(text);
  std::replace(result.begin(), result.end(), ';', ',');
  return result;
}

std::string entry_number(std::string_view text) {
  return replace_all(without_line_breaks(text), ";", "");
}

}  // namespace quenda

#include "settings/ini/ini_lines.h"

namespace quenda {
namespace {

constexpr bool is_blank(char c) { return c == ' ' || (c >= '\t' && c <= '\r') || c == '\x1A'; }

/// Names end at a NUL: no name that is asked for contains one.
std::string_view name_in(std::string_view text) {
  text = without_ini_blanks(text);
  return text.substr(0, text.find('\0'));
}

}  // namespace

std::string_view without_leading_ini_blanks(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  return text;
}

std::string_view without_ini_blanks(std::string_view text) {
  text = without_leading_ini_blanks(text);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

bool IniLines::next(IniLine& line) {
  while (at_ < text_.size()) {
    const std::size_t start = at_;
    std::size_t end = start;
    while (end < text_.size() && text_[end] != '\n' && text_[end] != '\r') ++end;
    at_ = end + 1;
    const std::string_view text = without_ini_blanks(text_.substr(start, end - start));
    if (text.empty()) continue;
    line = IniLine();
    line.start = start;
    line.end = end;
    const auto closing = text.front() == '[' ? text.rfind(']') : text.npos;
    if (closing != text.npos) {
      line.kind = IniLine::Kind::kSection;
      line.name = name_in(text.substr(1, closing - 1));
      return true;
    }
    const auto equals = text.find('=');
    line.has_value = equals != text.npos;
    line.name = name_in(text.substr(0, equals));
    if (line.has_value) line.value = without_ini_blanks(text.substr(equals + 1));
    return true;
  }
  return false;
}

}  // namespace quenda

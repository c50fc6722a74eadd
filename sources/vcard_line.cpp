#include "sources/vcard_line.h"

#include <algorithm>

#include "text/text.h"

namespace quenda {
namespace {

int hex_value(char c) {
  if (is_digit(c)) return c - '0';
  const char lower = to_lower(c);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Position of a character outside of double quotes, or the end.
std::size_t find_unquoted(std::string_view text, std::string_view wanted, std::size_t from) {
  bool quoted = false;
  for (std::size_t at = from; at < text.size(); ++at) {
    if (text[at] == '"') quoted = !quoted;
    if (!quoted && wanted.find(text[at]) != wanted.npos) return at;
  }
  return text.size();
}

std::string to_upper_ascii(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

void take_parameter(std::string_view parameter, VcardProperty& property) {
  const std::string lower = to_lower(replace_all(parameter, "\"", ""));
  const auto equals = lower.find('=');
  const std::string key = equals == std::string::npos ? "" : lower.substr(0, equals);
  const std::string value = equals == std::string::npos ? lower : lower.substr(equals + 1);
  // Version 2.1 names the encoding without saying that it is one.
  if (key.empty() || key == "encoding") {
    property.quoted_printable = property.quoted_printable || value == "quoted-printable";
    property.base64 = property.base64 || value == "base64" || value == "b";
  }
  if (key == "charset") property.latin = value.find("utf") == std::string::npos;
  if (key.empty() || key == "type") {
    for (const std::string_view type : split(value, ",")) property.types.emplace_back(trim(type));
  }
}

/// The character that a backslash and the one behind it stand for.
char unescaped(char c) { return c == 'n' || c == 'N' ? '\n' : c; }

}  // namespace

VcardProperty read_vcard_property(std::string_view line) {
  VcardProperty property;
  const std::size_t colon = find_unquoted(line, ":", 0);
  if (colon == line.size()) return property;
  property.value = line.substr(colon + 1);
  std::string_view head = line.substr(0, colon);
  std::size_t end = find_unquoted(head, ";", 0);
  std::string_view name = head.substr(0, end);
  if (const auto point = name.rfind('.'); point != name.npos) {
    property.group = to_lower(name.substr(0, point));
    name.remove_prefix(point + 1);
  }
  property.name = to_upper_ascii(trim(name));
  while (end < head.size()) {
    head.remove_prefix(end + 1);
    end = find_unquoted(head, ";", 0);
    take_parameter(head.substr(0, end), property);
  }
  return property;
}

std::string decode_quoted_printable(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const int high = text[at] == '=' && at + 2 < text.size() ? hex_value(text[at + 1]) : -1;
    const int low = high >= 0 ? hex_value(text[at + 2]) : -1;
    if (low >= 0) {
      out += static_cast<char>(high * 16 + low);
      at += 2;
    } else if (text[at] != '=' || at + 1 < text.size()) {
      out += text[at];
    }
  }
  return out;
}

std::vector<std::string> vcard_parts(std::string_view value) {
  std::vector<std::string> parts(1);
  for (std::size_t at = 0; at < value.size(); ++at) {
    const char c = value[at];
    if (c == '\\' && at + 1 < value.size()) {
      parts.back() += unescaped(value[++at]);
    } else if (c == ';') {
      parts.emplace_back();
    } else {
      parts.back() += c == ',' ? ' ' : c;
    }
  }
  return parts;
}

std::string vcard_text(std::string_view value) {
  std::string text;
  for (std::size_t at = 0; at < value.size(); ++at) {
    const bool escaped = value[at] == '\\' && at + 1 < value.size();
    text += escaped ? unescaped(value[++at]) : value[at];
  }
  return text;
}

bool VcardLines::next() {
  line_.clear();
  while (at_ < text_.size() && line_.empty()) {
    number_ = physical_ + 1;
    append(next_physical());
  }
  if (line_.empty()) return false;
  const bool printable =
      to_lower(std::string_view(line_).substr(0, line_.find(':'))).find("quoted-printable") !=
      std::string::npos;
  while (at_ < text_.size()) {
    if (printable && line_.back() == '=') {
      // A soft break; a blank in front may belong to the text, or to the folding.
      line_.pop_back();
      append(next_physical());
      if (line_.empty()) break;
    } else if (continued()) {
      append(next_physical().substr(1));
    } else {
      break;
    }
  }
  return true;
}

bool VcardLines::continued() const { return text_[at_] == ' ' || text_[at_] == '\t'; }

void VcardLines::append(std::string_view part) {
  line_.append(part.substr(0, kLongest - std::min(kLongest, line_.size())));
}

std::string_view VcardLines::next_physical() {
  ++physical_;
  const std::size_t begin = at_;
  // Looked for anew only when passed: a file may have no LF at all.
  if (next_lf_ < at_ || physical_ == 1) next_lf_ = std::min(text_.find('\n', at_), text_.size());
  const std::string_view before_lf = text_.substr(begin, next_lf_ - begin);
  const std::size_t end = begin + std::min(before_lf.find('\r'), before_lf.size());
  at_ = end;
  if (at_ < text_.size()) at_ += text_.substr(at_).starts_with(kCrLf) ? kCrLf.size() : 1;
  return text_.substr(begin, end - begin);
}

}  // namespace quenda

#include "settings/ini/ini_text.h"

#include <array>
#include <cstring>

#include "settings/ini/ini_encoding.h"
#include "settings/ini/ini_lines.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kLongestValue = 2047;
constexpr std::size_t kLongestNumber = 29;

char small_letter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string small_letters(std::string_view name) {
  std::string result(name);
  for (char& c : result) c = small_letter(c);
  return result;
}

/// A section's number as the first bytes of its keys in the index.
std::array<char, sizeof(std::uint32_t)> bytes_of(std::uint32_t section) {
  std::array<char, sizeof section> bytes{};
  std::memcpy(bytes.data(), &section, sizeof section);
  return bytes;
}

/// What a reader with a buffer hands out: up to a NUL, without a pair of quotes, cut to the buffer.
std::string_view handed_out(std::string_view value, std::size_t longest) {
  value = value.substr(0, value.find('\0'));
  if (value.size() > 1 && (value.front() == '"' || value.front() == '\'') &&
      value.back() == value.front()) {
    value = value.substr(1, value.size() - 2);
  }
  return value.substr(0, longest);
}

unsigned digit_value(char c) {
  if (is_digit(c)) return static_cast<unsigned>(c - '0');
  const char small = small_letter(c);
  return small >= 'a' && small <= 'f' ? static_cast<unsigned>(small - 'a') + 10U : 16U;
}

std::int32_t whole_number(std::string_view text) {
  while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') text.remove_prefix(1);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  unsigned base = 10;
  if (text.starts_with("0x")) base = 16;
  if (text.starts_with("0o")) base = 8;
  if (text.starts_with("0b")) base = 2;
  if (base != 10) text.remove_prefix(2);
  std::uint32_t number = 0;
  for (const char c : text) {
    if (digit_value(c) >= base) break;
    number = number * base + digit_value(c);
  }
  return static_cast<std::int32_t>(negative ? 0U - number : number);
}

}  // namespace

std::string as_ini_gives_back(std::string_view value) {
  return std::string(handed_out(without_ini_blanks(value), kLongestValue));
}

IniText::IniText(std::string_view content) {
  const IniEncoding encoding = ini_encoding(content);
  text_ = from_editable(editable_ini(content, encoding), encoding);
  const auto section_name = [&](std::uint32_t row) { return sections_[row]; };
  const auto key_name = [&](std::uint32_t row) { return keys_[row]; };
  sections_.add_row("");
  section_index_.find_or_add("", 0, section_name);
  std::uint32_t section = 0;
  bool repeated = false;
  IniLines lines(text_);
  for (IniLine line; lines.next(line);) {
    if (line.kind == IniLine::Kind::kSection) {
      section = static_cast<std::uint32_t>(sections_.size());
      const std::string name = small_letters(line.name);
      repeated = section_index_.find_or_add(name, section, section_name) != ViewIndex::kNone;
      if (!repeated) sections_.add_row(name);
      continue;
    }
    if (repeated) continue;
    const auto prefix = bytes_of(section);
    std::string key(prefix.data(), prefix.size());
    key += small_letters(line.name);
    if (key_index_.find_or_add(key, static_cast<std::uint32_t>(keys_.size()), key_name) !=
        ViewIndex::kNone) {
      continue;
    }
    keys_.add_row(key);
    const auto start = line.has_value && !line.value.empty()
                           ? static_cast<std::size_t>(line.value.data() - text_.data())
                           : 0;
    values_.push_back({start, line.value.size(), line.has_value});
  }
}

std::optional<std::string_view> IniText::find(std::string_view section,
                                              std::string_view key) const {
  const std::string section_wanted = small_letters(without_ini_blanks(section));
  const std::uint32_t number =
      section_index_.find(section_wanted, [&](std::uint32_t row) { return sections_[row]; });
  if (number == ViewIndex::kNone) return std::nullopt;
  const auto prefix = bytes_of(number);
  std::string wanted(prefix.data(), prefix.size());
  wanted += small_letters(without_ini_blanks(key));
  const std::uint32_t row =
      key_index_.find(wanted, [&](std::uint32_t stored) { return keys_[stored]; });
  if (row == ViewIndex::kNone || !values_[row].present) return std::nullopt;
  return std::string_view(text_).substr(values_[row].start, values_[row].length);
}

std::string IniText::text(std::string_view section, std::string_view key,
                          std::string_view standard) const {
  if (const auto value = find(section, key)) return std::string(handed_out(*value, kLongestValue));
  while (standard.ends_with(' ')) standard.remove_suffix(1);
  return std::string(handed_out(standard, kLongestValue));
}

std::int32_t IniText::number(std::string_view section, std::string_view key,
                             std::int32_t standard) const {
  const auto value = find(section, key);
  const auto digits = value ? handed_out(*value, kLongestNumber) : std::string_view();
  return digits.empty() ? standard : whole_number(digits);
}

std::string replace_ini_value(std::string_view content, std::string_view section,
                              std::string_view key, std::string_view value) {
  const IniEncoding encoding = ini_encoding(content);
  std::string text = editable_ini(content, encoding);
  const auto editable = [&](std::string_view part) {
    return to_editable(without_leading_ini_blanks(part), encoding);
  };
  const std::string section_written = editable(section);
  const std::string section_wanted = small_letters(without_ini_blanks(section_written));
  const std::string key_wanted = small_letters(without_ini_blanks(editable(key)));
  bool inside = section_wanted.empty();
  bool found = inside;
  std::size_t last_end = 0;  // behind the last line of the section
  std::string key_line = concat(editable(key), "=", editable(value));
  IniLines lines(text);
  for (IniLine line; lines.next(line);) {
    if (line.kind == IniLine::Kind::kSection) {
      if (found && inside) break;
      inside = !found && small_letters(line.name) == section_wanted;
      found = found || inside;
    } else if (inside && small_letters(line.name) == key_wanted) {
      key_line = concat(line.name, "=", editable(value));
      text.replace(line.start, line.end - line.start, key_line);
      return stored_ini(text, encoding);
    }
    if (inside) last_end = line.end;
  }
  if (!found) {
    if (!text.empty() && text.back() != '\n' && text.back() != '\r') text += kCrLf;
    text += concat("[", section_written, "]", kCrLf, key_line, kCrLf);
  } else if (last_end == 0) {
    text.insert(0, concat(key_line, kCrLf));
  } else {
    text.insert(last_end, concat(kCrLf, key_line));
    if (last_end + kCrLf.size() + key_line.size() == text.size()) text += kCrLf;
  }
  return stored_ini(text, encoding);
}

}  // namespace quenda

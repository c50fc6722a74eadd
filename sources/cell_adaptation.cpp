#include "sources/cell_adaptation.h"

#include <algorithm>
#include <cstddef>

#include "sources/kept_breaks.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kCardOpen = "[vcd(";
constexpr std::string_view kCardClose = ")vcd]";

std::size_t digits_in(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), is_digit));
}

bool is_letter(char c) {
  const char lower = to_lower(c);
  return (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(c) >= 0xC0;
}

bool has_letter(std::string_view text) { return std::any_of(text.begin(), text.end(), is_letter); }

/// Dashes and blanks of every kind are plain ones in a number.
std::string with_plain_signs(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (const char c : text) {
    switch (static_cast<unsigned char>(c)) {
      case 0x96:  // en dash
      case 0x97:  // em dash
        plain += '-';
        break;
      case 0xA0:  // no-break blank
      case '\t':
        plain += ' ';
        break;
      case 0xAD:  // soft hyphen
        break;
      default:
        plain += c;
    }
  }
  return plain;
}

/// "030 123456 (Büro)", "030 123456 privat": the number without its remark.
std::string_view without_remark(std::string_view number) {
  constexpr std::size_t kFewestDigits = 5;
  number = trim(number);
  if (number.ends_with(')')) {
    const auto open = number.rfind('(');
    const bool behind = open != number.npos && digits_in(number.substr(0, open)) >= kFewestDigits;
    if (behind && has_letter(number.substr(open))) return trim(number.substr(0, open));
  }
  const auto letter = std::find_if(number.begin(), number.end(), is_letter);
  const auto at = static_cast<std::size_t>(letter - number.begin());
  if (letter == number.end() || at == 0 || number[at - 1] != ' ') return number;
  const bool remark = digits_in(number.substr(at)) == 0;
  return remark && digits_in(number.substr(0, at)) >= kFewestDigits ? trim(number.substr(0, at))
                                                                    : number;
}

/// Position of a "/" with a whole number on either side, of which the second has its own prefix.
std::size_t find_slash(std::string_view text) {
  constexpr std::size_t kFewestDigits = 7;
  for (auto at = text.find('/'); at != text.npos; at = text.find('/', at + 1)) {
    const std::string_view rest = trim(text.substr(at + 1));
    const bool prefixed = rest.starts_with('0') || rest.starts_with('+');
    const std::string_view second = rest.substr(0, rest.find('/'));
    const bool whole = digits_in(second) >= kFewestDigits || digits_in(rest) >= kFewestDigits;
    if (prefixed && whole && digits_in(text.substr(0, at)) >= kFewestDigits) return at;
  }
  return text.npos;
}

/// Adds the numbers of a text in which only "/" may still separate some.
void add_numbers(std::string_view text, std::vector<std::string>& numbers) {
  for (auto slash = find_slash(text); slash != text.npos; slash = find_slash(text)) {
    numbers.emplace_back(without_remark(text.substr(0, slash)));
    text.remove_prefix(slash + 1);
  }
  if (text = without_remark(text); !text.empty()) numbers.emplace_back(text);
}

}  // namespace

bool is_plain_number(std::string_view cell) {
  static constexpr CharacterSet kPlain("0123456789 +-.()");
  return std::all_of(cell.begin(), cell.end(), [](char c) { return kPlain.contains(c); });
}

bool needs_adapting(std::string_view field) {
  static constexpr CharacterSet kTelling(";[]\x0E\x0F");
  return std::any_of(field.begin(), field.end(), [](char c) { return kTelling.contains(c); });
}

std::string adapted_text(std::string_view field) {
  std::string text = in_one_line(field);
  std::replace(text.begin(), text.end(), ';', ',');
  text = replace_all(text, kCardOpen, "(vcd(");
  return replace_all(text, kCardClose, ")vcd)");
}

std::vector<std::string> numbers_in_cell(std::string_view cell, char delimiter) {
  if (cell.empty()) return {};
  if (is_plain_number(cell)) return {std::string(cell)};
  std::string text = with_plain_signs(cell);
  std::replace(text.begin(), text.end(), '|', delimiter == '\t' ? ' ' : delimiter);
  text = replace_all(text, " ::: ", ";");
  std::replace_if(text.begin(), text.end(), is_kept_break, ';');
  std::vector<std::string> numbers;
  for (const std::string_view part : split(text, ";")) add_numbers(part, numbers);
  // A part without a digit beside numbers is a remark, too.
  const auto no_digit = [](const std::string& number) { return digits_in(number) == 0; };
  if (!std::all_of(numbers.begin(), numbers.end(), no_digit)) std::erase_if(numbers, no_digit);
  if (numbers.empty()) numbers.push_back(std::move(text));
  return numbers;
}

std::string_view name_or_stand_in(std::string_view name, std::string_view display,
                                  std::string_view company) {
  if (!trim(name).empty()) return name;
  return trim(display).empty() ? company : display;
}

}  // namespace quenda

// Replacing a value in a settings file: it is read back, and all other keys keep their values.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/oracle.h"
#include "settings/ini/ini_text.h"
#include "text/text.h"

namespace quenda {
namespace {

struct Place {
  std::string section, key;
};

/// Without blanks and control characters at both ends.
std::string_view bare(std::string_view text) {
  const auto is_blank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

/// Every place that a line of the text could stand for.
std::vector<Place> places_of(std::string_view text) {
  std::vector<Place> places;
  std::string section;
  const std::string lines = replace_all(text, "\r", "\n");
  for (std::string_view line : split(lines, "\n")) {
    line = bare(line);
    if (line.starts_with('[')) {
      section = line.substr(1, line.find(']') == line.npos ? line.npos : line.find(']') - 1);
    } else if (line.find('=') != line.npos) {
      places.push_back({section, std::string(bare(line.substr(0, line.find('='))))});
    }
  }
  return places;
}

}  // namespace
}  // namespace quenda

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quenda;
  const std::string_view input = text_of(data, size);
  // The first line is the new value, the second the place, the rest the file.
  const auto first = input.find('\n');
  if (first == input.npos) return 0;
  const std::string value =
      replace_all(replace_all(input.substr(0, first), "\r", ""), std::string_view("\0", 1), "");
  const std::string_view file = input.substr(first + 1);
  const IniText before(file);
  for (const Place& place : places_of(file)) {
    static_cast<void>(before.text(place.section, place.key, "standard"));
    static_cast<void>(before.number(place.section, place.key, -1));
  }
  if (value.size() > 1000) return 0;
  const std::string after_text = replace_ini_value(file, "Import", "Ask", value);
  const IniText after(after_text);
  const bool plain = value.find_first_of("\n") == value.npos;
  if (plain && !file.starts_with("\xFF\xFE") && !file.starts_with("\xFE\xFF") &&
      !file.starts_with("\xEF\xBB\xBF")) {
    expect_equal("value read back", after.text("Import", "Ask", ""), as_ini_gives_back(value));
  }
  for (const Place& place : places_of(file)) {
    if (equal_ignoring_case(bare(place.section), "Import") && equal_ignoring_case(place.key, "Ask"))
      continue;
    expect_equal(concat("other key ", place.section, "/", place.key),
                 after.text(place.section, place.key, "standard"),
                 before.text(place.section, place.key, "standard"));
  }
  expect_equal("the same value again", replace_ini_value(after_text, "Import", "Ask", value),
               after_text);
  return 0;
}

#pragma once

#include <cstddef>
#include <string_view>

namespace quenda {

/// One line of an INI file that says something.
struct IniLine {
  enum class Kind { kSection, kEntry };
  Kind kind = Kind::kEntry;
  std::string_view name;   // of the section or the key, without blanks around it
  std::string_view value;  // without blanks around it
  bool has_value = false;  // whether the line has a "="
  std::size_t start = 0;   // where the line starts
  std::size_t end = 0;     // where its CR or LF stands
};

/// Walks over the lines of INI text; lines of blanks only are left out. CR and LF both end a line.
class IniLines {
 public:
  explicit IniLines(std::string_view text) : text_(text) {}
  bool next(IniLine& line);

 private:
  std::string_view text_;
  std::size_t at_ = 0;
};

/// The text without what INI files take for blanks: blank, tab, line ends, VT, FF and code 26.
std::string_view without_ini_blanks(std::string_view text);
std::string_view without_leading_ini_blanks(std::string_view text);

}  // namespace quenda

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/text_rows.h"
#include "text/view_index.h"

namespace quenda {

/// The text of an INI file, indexed once, so that each look-up takes the same short time however
/// large the file is. It gives what the profile functions of Windows give for the same file:
/// sections and keys are found whatever their letter case (a to z), of several equal ones only the
/// first counts.
class IniText {
 public:
  IniText() : IniText(std::string_view()) {}
  /// The file's bytes. UTF-8 and UTF-16 with a byte order mark are read as such; characters that
  /// Windows-1252 lacks become "?".
  explicit IniText(std::string_view content);

  /// The value of a key without the blanks around it; nothing when there is no such key, or when
  /// its line has no "=".
  [[nodiscard]] std::optional<std::string_view> find(std::string_view section,
                                                     std::string_view key) const;
  /// The value as the profile-string reader hands it out: without one pair of quotes around it,
  /// 2047 characters at most. The default is cut in the same way, and loses the blanks at its end.
  [[nodiscard]] std::string text(std::string_view section, std::string_view key,
                                 std::string_view standard) const;
  /// The whole number at the start of the value, 0 for a text, the default for an empty value.
  /// "0x", "0o" and "0b" begin other number systems; what exceeds 32 bits wraps around.
  [[nodiscard]] std::int32_t number(std::string_view section, std::string_view key,
                                    std::int32_t standard) const;

 private:
  struct Value {
    std::size_t start = 0;
    std::size_t length = 0;
    bool present = false;
  };

  std::string text_;
  TextRows sections_;  // names in small letters; the lines before the first section have ""
  ViewIndex section_index_;
  TextRows keys_;  // number of the section and name in small letters
  ViewIndex key_index_;
  std::vector<Value> values_;
};

/// What is read when this value was written: without blanks around it, then without one pair of
/// quotes, 2047 characters at most.
std::string as_ini_gives_back(std::string_view value);

/// The content of a file with a key set to a value; section and key are added when they are
/// missing. All other lines, and the encoding of the file, stay as they are.
std::string replace_ini_value(std::string_view content, std::string_view section,
                              std::string_view key, std::string_view value);

}  // namespace quenda

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/view_index.h"

namespace quenda {

/// Longest value that a reader hands out, in bytes; what is beyond it is cut off.
inline constexpr std::size_t kLongestIniValue = 2047;

/// The text of an INI file, indexed once so that each look-up takes the same short time however
/// large the file is. Sections and keys are found whatever their letter case; of several equal ones
/// the first counts. It gives what the profile functions of Windows give for the same file.
class IniText {
 public:
  IniText() : IniText(std::string()) {}
  /// The file's bytes. UTF-16 with a byte order mark is read as such; characters that Windows-1252
  /// lacks become "?".
  explicit IniText(std::string content);

  /// The value of a key without blanks and one pair of quotes around it; nothing when the file has
  /// no such key.
  [[nodiscard]] std::optional<std::string_view> find(std::string_view section,
                                                     std::string_view key) const;
  /// The value as the profile-string reader hands it out, or `standard`.
  [[nodiscard]] std::string text(std::string_view section, std::string_view key,
                                 std::string_view standard) const;
  /// The whole number at the start of the value, 0 for a text, or `standard`. Numbers beyond 32
  /// bits wrap around.
  [[nodiscard]] std::int32_t number(std::string_view section, std::string_view key,
                                    std::int32_t standard) const;

 private:
  std::string text_;
};

/// The file's text with a key set to a value; section and key are added when they are missing. All
/// other lines stay as they are.
std::string replace_ini_value(std::string_view content, std::string_view section,
                              std::string_view key, std::string_view value);

}  // namespace quenda

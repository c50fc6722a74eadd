#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "settings/ini/language_keys.h"

namespace quenda {

class Clock;
class clsErrorHandling;
class Files;
class modAPI_INI;

/// The texts of the program in the user's language. Every look-up carries the German text, so that
/// a missing or unreadable language file costs nothing but the translation.
class modLanguage {
 public:
  modLanguage(clsErrorHandling& errors, Files& files, const Clock& clock, modAPI_INI& ini)
      : errors_(errors), files_(files), clock_(clock), ini_(ini) {}

  /// Chooses the language file "\base\language_##.ini" by the language's short name; an empty name
  /// stands for the one in the suite's settings.
  void LanguageInit(std::string_view language);

  /// The text of a key with its line breaks and tabs. In runs that do not trap faults, texts are
  /// marked for their translators: "[found]", "?missing?", and what is missing is logged.
  std::string LoadLangKey(std::string_view key, std::string_view german);
  /// The same with the German text of the key table.
  std::string LoadLangKey(TextKey key);

  /// Adds a missing key to the language log.
  void Log(std::string_view key, std::string_view german);

  [[nodiscard]] const std::string& language() const { return language_; }
  [[nodiscard]] bool file_missing() const { return file_missing_; }

  /// Kilobytes that the language log may reach.
  std::int32_t log_maximum = 25;

 private:
  clsErrorHandling& errors_;
  Files& files_;
  const Clock& clock_;
  modAPI_INI& ini_;
  std::string language_;
  std::string file_;
  bool file_missing_ = true;
};

}  // namespace quenda

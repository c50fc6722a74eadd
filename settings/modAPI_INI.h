#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "settings/ini/ini_text.h"
#include "settings/suite_paths.h"

namespace quenda {

class clsErrorHandling;
class Files;
class RuntimeFault;

/// The settings of the suite: INI files by their names inside the suite's folders, read with
/// defaults and bounds. A missing or unreadable file gives the defaults. Files are read again when
/// they have changed.
class modAPI_INI {
 public:
  modAPI_INI(clsErrorHandling& errors, Files& files, const SuitePaths& paths);
  modAPI_INI(const modAPI_INI&) = delete;
  modAPI_INI& operator=(const modAPI_INI&) = delete;
  ~modAPI_INI();

  /// The path of a file: names that begin with "\data\" or "\update\" lie in the data root, those
  /// with "\base\" in the program folder, an empty name is the suite's main settings file.
  std::string GetMainPath(std::string_view file);

  /// The text of a key, at most 2047 characters. With `numeric_only` a value that is no number
  /// becomes the default, with `empty_to_default` an empty one.
  std::string GetSettStr(std::string_view section, std::string_view key, std::string_view standard,
                         std::string_view file, bool empty_to_default, bool numeric_only);

  /// The number of a key, passed through `Range` unless both bounds are 0.
  std::int32_t GetSettLng(std::string_view section, std::string_view key, std::int32_t standard,
                          std::int32_t min, std::int32_t max, bool mode, std::string_view file);

  /// True for a positive number only. A missing key reads as false even where the default is true,
  /// and so does "-1": settings that default to true have to be in the file to count.
  bool GetSettBool(std::string_view section, std::string_view key, bool standard,
                   std::string_view file);

  /// With `mode` a value outside the bounds becomes the default. Without, it becomes the bound that
  /// it passed; an upper bound of 0 is none.
  std::int32_t Range(std::int32_t min, std::int32_t max, std::int32_t value, bool mode,
                     std::int32_t standard);

  /// Sets a key, unless `write_protection` is on.
  void SetSettStr(std::string_view section, std::string_view key, std::string_view value,
                  std::string_view file);

  /// Whether a settings file is there to be read. One that cannot be looked at or read counts as
  /// none, but the user is told once: what it says is not known.
  bool HasFile(const std::string& path);
  /// The first such file, empty while there is none.
  [[nodiscard]] const std::string& unreadable() const { return unreadable_; }

  /// While set, nothing is written.
  bool write_protection = false;

 private:
  struct Loaded;

  const IniText& load(const std::string& path);
  void tell_unreadable(const std::string& path, const RuntimeFault& fault);

  clsErrorHandling& errors_;
  Files& files_;
  const SuitePaths& paths_;
  std::map<std::string, std::unique_ptr<Loaded>, std::less<>> loaded_;
  std::set<std::string> told_;
  std::string unreadable_;
};

/// The rule of `modAPI_INI::Range`.
std::int32_t limited(std::int32_t min, std::int32_t max, std::int32_t value, bool mode,
                     std::int32_t standard);

}  // namespace quenda

#include "settings/modAPI_INI.h"

#include <optional>

#include "platform/files.h"
#include "support/procedure.h"
#include "text/conversions.h"
#include "text/fault.h"
#include "text/text.h"

namespace quenda {

/// A file as it was when it was read last.
struct modAPI_INI::Loaded {
  std::optional<std::uint64_t> stamp;
  IniText text;
};

modAPI_INI::modAPI_INI(clsErrorHandling& errors, Files& files, const SuitePaths& paths)
    : errors_(errors), files_(files), paths_(paths) {}

modAPI_INI::~modAPI_INI() = default;

std::int32_t limited(std::int32_t min, std::int32_t max, std::int32_t value, bool mode,
                     std::int32_t standard) {
  if (mode) return value < min || value > max ? standard : value;
  if (value < min) return min;
  return value > max && max != 0 ? max : value;
}

const IniText& modAPI_INI::load(const std::string& path) {
  std::unique_ptr<Loaded>& loaded = loaded_[path];
  if (!loaded) loaded = std::make_unique<Loaded>();
  const std::uint64_t stamp = files_.stamp(path);
  if (stamp != loaded->stamp) {
    loaded->stamp = stamp;
    loaded->text = IniText();
    const bool done = procedure_with_own_report(
        errors_, "modAPI_INI.load", {path},
        [&] {
          if (files_.has_file(path)) loaded->text = IniText(files_.read(path));
        },
        [&](const RuntimeFault& fault, int /*statement*/) { tell_unreadable(path, fault); });
    if (done) told_.erase(path);
  }
  return loaded->text;
}

bool modAPI_INI::HasFile(const std::string& path) {
  load(path);
  return !told_.contains(path) && files_.exists(path);
}

void modAPI_INI::tell_unreadable(const std::string& path, const RuntimeFault& fault) {
  if (!told_.insert(path).second) return;
  unreadable_ = path;
  errors_.show(concat(path, ": ", fault.description(), kCrLf,
                      "Diese Einstellungen sind unbekannt, es gelten die Vorgaben."),
               MessageStyle::kExclamation, "");
}

std::string modAPI_INI::GetMainPath(std::string_view file) {
  std::string path;
  procedure(errors_, "modAPI_INI.GetMainPath", {file}, [&] {
    if (file.starts_with("\\data\\") || file.starts_with("\\update\\")) {
      path = concat(paths_.data_root, file);
    } else if (file.starts_with("\\base\\")) {
      path = concat(paths_.program_folder, file);
    } else if (!file.empty()) {
      path = file;
    } else {
      path = concat(paths_.data_root, "\\data\\Quenda.ini");
    }
  }).or_go_on();
  return path;
}

std::string modAPI_INI::GetSettStr(std::string_view section, std::string_view key,
                                   std::string_view standard, std::string_view file,
                                   bool empty_to_default, bool numeric_only) {
  std::string value;
  procedure(errors_, "modAPI_INI.GetSettStr", {section, key, standard, file}, [&] {
    value = load(GetMainPath(file)).text(section, key, standard);
    if ((numeric_only && !is_numeric(value)) || (empty_to_default && value.empty())) {
      value = standard;
    }
  }).or_go_on();
  return value;
}

std::int32_t modAPI_INI::GetSettLng(std::string_view section, std::string_view key,
                                    std::int32_t standard, std::int32_t min, std::int32_t max,
                                    bool mode, std::string_view file) {
  std::int32_t value = standard;
  procedure(errors_, "modAPI_INI.GetSettLng", {section, key, standard, min, max, mode, file}, [&] {
    value = load(GetMainPath(file)).number(section, key, standard);
    if (min != 0 || max != 0) value = Range(min, max, value, mode, standard);
  }).or_go_on();
  return value;
}

bool modAPI_INI::GetSettBool(std::string_view section, std::string_view key, bool standard,
                             std::string_view file) {
  bool value = false;
  procedure(errors_, "modAPI_INI.GetSettBool", {section, key, standard, file}, [&] {
    const std::int32_t number = load(GetMainPath(file)).number(section, key, standard ? -1 : 0);
    value = Range(0, 1, number, false, 0) != 0;
  }).or_go_on();
  return value;
}

std::int32_t modAPI_INI::Range(std::int32_t min, std::int32_t max, std::int32_t value, bool mode,
                               std::int32_t standard) {
  std::int32_t result = standard;
  procedure(errors_, "modAPI_INI.Range", {min, max, value, mode, standard}, [&] {
    result = limited(min, max, value, mode, standard);
  }).or_go_on();
  return result;
}

void modAPI_INI::SetSettStr(std::string_view section, std::string_view key, std::string_view value,
                            std::string_view file) {
  procedure(errors_, "modAPI_INI.SetSettStr", {section, key, value, file}, [&] {
    if (write_protection) return;
    const std::string path = GetMainPath(file);
    // A file that cannot be looked at or read ends here and keeps its content.
    const std::string before = files_.has_file(path) ? files_.read(path) : std::string();
    const std::string after = replace_ini_value(before, section, key, value);
    if (after == before) return;
    loaded_.erase(path);
    files_.write(path, after);
  }).or_go_on();
}

}  // namespace quenda

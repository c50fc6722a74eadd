#include "settings/result_settings.h"

#include "settings/import_settings.h"
#include "settings/modAPI_INI.h"
#include "support/procedure.h"

namespace quenda {
namespace {

constexpr std::string_view kSection = "Import";
constexpr std::string_view kBackup = "Backup";

}  // namespace

ResultSettings load_result_settings(modAPI_INI& ini) {
  ResultSettings settings;
  skip_faults(
      {[&] { settings.backup = ini.GetSettBool(kSection, kBackup, false, kImportSettingsFile); },
       [&] {
         settings.report =
             ini.GetSettStr(kSection, "Report", "", kImportSettingsFile, false, false);
       }});
  return settings;
}

void save_backup(modAPI_INI& ini, bool backup) {
  const bool known =
      !ini.GetSettStr(kSection, kBackup, "", kImportSettingsFile, false, false).empty();
  if (backup || known) ini.SetSettStr(kSection, kBackup, backup ? "1" : "0", kImportSettingsFile);
}

}  // namespace quenda

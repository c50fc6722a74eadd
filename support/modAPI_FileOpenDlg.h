#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/dialogs.h"

namespace quenda {

class clsErrorHandling;

/// The names of filters that come from the language file.
struct FilterTexts {
  std::string all_files;  // "Alle Dateien"
  std::string pictures;   // "Bilder"
};

/// The system's file open dialog with the suite's sets of filters.
namespace modAPI_FileOpenDlg {

/// The filters of a set: "all", "journal", "ispy", "progs", "restore", "pics", "html", "htmlex",
/// "htm", "xls", "txt", "csv", "log", "wav". All files are the last choice of every set, and the
/// only one of a set that does not exist.
std::vector<FileFilter> fFilter(clsErrorHandling& errors, std::string_view key,
                                const FilterTexts& texts);

/// What the user chose; empty when the user cancelled.
ChosenFile FileOpenDialog(clsErrorHandling& errors, Dialogs& dialogs, std::string_view key,
                          const FilterTexts& texts);

}  // namespace modAPI_FileOpenDlg
}  // namespace quenda

#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace quenda {

class clsErrorHandling;

/// The names of filters that come from the language file.
struct FilterTexts {
  std::string all_files;  // "Alle Dateien"
  std::string pictures;   // "Bilder"
};

/// The suite's sets of filters. All files are the last choice of each.
enum class FilterSet {
  kAll,
  kJournal,
  kISpy,
  kProgs,
  kRestore,
  kPics,
  kHtml,
  kHtmlex,
  kHtm,
  kXls,
  kTxt,
  kCsv,
  kLog,
  kWav,
};

/// The system's file open dialog with the suite's sets of filters.
namespace modAPI_FileOpenDlg {

/// The filters of a set.
std::vector<FileFilter> fFilter(clsErrorHandling& errors, FilterSet set, const FilterTexts& texts);

/// What the user chose; empty when the user cancelled.
ChosenFile FileOpenDialog(clsErrorHandling& errors, Dialogs& dialogs, FilterSet set,
                          const FilterTexts& texts);

}  // namespace modAPI_FileOpenDlg
}  // namespace quenda

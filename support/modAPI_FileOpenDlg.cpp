#include "support/modAPI_FileOpenDlg.h"

#include <array>

#include "support/procedure.h"
#include "text/text.h"

namespace quenda::modAPI_FileOpenDlg {
namespace {

struct FilterRow {
  std::string_view key;
  std::string_view description;
  std::string_view pattern;
};

constexpr std::string_view kHtmlPatterns = "*.htm;*.html;*.shtml";
constexpr std::string_view kActivePatterns = "*.asp;*.php;*.php3;*.php4";
constexpr std::string_view kScriptPatterns = "*.cgi;*.pl";

constexpr std::array kFilterRows = {
    FilterRow{"journal", "Quenda-Journale", "*.txt.*"},
    FilterRow{"ispy", "ISpy log", "ISpy.log"},
    FilterRow{"progs", "Programme", "*.exe;*.com;*.cmd;*.bat"},
    FilterRow{"restore", "Sicherungen", "*.txt;*.ini;*.dat"},
    FilterRow{"html", "HTML", kHtmlPatterns},
    FilterRow{"html", "Active pages", kActivePatterns},
    FilterRow{"html", "Scripts", kScriptPatterns},
    FilterRow{"htmlex", "HTML *.htm;*.html;*.shtml", kHtmlPatterns},
    FilterRow{"htmlex", "Active pages *.asp;*.php;*.php3;*.php4", kActivePatterns},
    FilterRow{"htmlex", "Scripts *.cgi;*.pl", kScriptPatterns},
    FilterRow{"htm", "HTML *.html", "*.html"},
    FilterRow{"htm", "HTML *.htm", "*.htm"},
    FilterRow{"xls", "Excel *.xls", "*.xls"},
    FilterRow{"txt", "Text *.txt", "*.txt"},
    FilterRow{"csv", "CSV *.csv", "*.csv"},
    FilterRow{"log", "Logs", "2*.txt"},
    FilterRow{"wav", "Sound", "*.wav"},
};

}  // namespace

std::vector<FileFilter> fFilter(clsErrorHandling& errors, std::string_view key,
                                const FilterTexts& texts) {
  std::vector<FileFilter> filters;
  procedure(errors, "modAPI_FileOpenDlg.fFilter", {key}, [&] {
    for (const FilterRow& row : kFilterRows) {
      if (row.key == key)
        filters.push_back({std::string(row.description), std::string(row.pattern)});
    }
    if (key == "pics") {
      filters.push_back(
          {concat(texts.pictures, " (jpg, bmp, gif, png, ico)"), "*.jpg;*.bmp;*.gif;*.png;*.ico"});
    }
    filters.push_back({texts.all_files, "*.*"});
  });
  return filters;
}

ChosenFile FileOpenDialog(clsErrorHandling& errors, Dialogs& dialogs, std::string_view key,
                          const FilterTexts& texts) {
  ChosenFile chosen;
  procedure(errors, "modAPI_FileOpenDlg.FileOpenDialog", {key},
            [&] { chosen = dialogs.open_file(fFilter(errors, key, texts)); });
  return chosen;
}

}  // namespace quenda::modAPI_FileOpenDlg

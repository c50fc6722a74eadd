#include "support/modAPI_FileOpenDlg.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "support/procedure.h"
#include "text/text.h"

namespace quenda::modAPI_FileOpenDlg {
namespace {

/// The names of the sets in trace lines.
constexpr std::array<std::string_view, 14> kSetNames = {
    "all",    "journal", "ispy", "progs", "restore", "pics", "html",
    "htmlex", "htm",     "xls",  "txt",   "csv",     "log",  "wav",
};

std::string_view name_of(FilterSet set) { return kSetNames.at(static_cast<std::size_t>(set)); }

struct FilterRow {
  FilterSet set;
  std::string_view description;
  std::string_view pattern;
};

constexpr std::string_view kHtmlPatterns = "*.htm;*.html;*.shtml";
constexpr std::string_view kActivePatterns = "*.asp;*.php;*.php3;*.php4";
constexpr std::string_view kScriptPatterns = "*.cgi;*.pl";

constexpr std::array kFilterRows = {
    FilterRow{FilterSet::kJournal, "Quenda-Journale", "*.txt.*"},
    FilterRow{FilterSet::kISpy, "ISpy log", "ISpy.log"},
    FilterRow{FilterSet::kProgs, "Programme", "*.exe;*.com;*.cmd;*.bat"},
    FilterRow{FilterSet::kRestore, "Sicherungen", "*.txt;*.ini;*.dat"},
    FilterRow{FilterSet::kHtml, "HTML", kHtmlPatterns},
    FilterRow{FilterSet::kHtml, "Active pages", kActivePatterns},
    FilterRow{FilterSet::kHtml, "Scripts", kScriptPatterns},
    FilterRow{FilterSet::kHtmlex, "HTML *.htm;*.html;*.shtml", kHtmlPatterns},
    FilterRow{FilterSet::kHtmlex, "Active pages *.asp;*.php;*.php3;*.php4", kActivePatterns},
    FilterRow{FilterSet::kHtmlex, "Scripts *.cgi;*.pl", kScriptPatterns},
    FilterRow{FilterSet::kHtm, "HTML *.html", "*.html"},
    FilterRow{FilterSet::kHtm, "HTML *.htm", "*.htm"},
    FilterRow{FilterSet::kXls, "Excel *.xls", "*.xls"},
    FilterRow{FilterSet::kTxt, "Text *.txt", "*.txt"},
    FilterRow{FilterSet::kCsv, "CSV *.csv", "*.csv"},
    FilterRow{FilterSet::kLog, "Logs", "2*.txt"},
    FilterRow{FilterSet::kWav, "Sound", "*.wav"},
};

}  // namespace

std::vector<FileFilter> fFilter(clsErrorHandling& errors, FilterSet set, const FilterTexts& texts) {
  std::vector<FileFilter> filters;
  procedure(errors, "modAPI_FileOpenDlg.fFilter", {name_of(set)}, [&] {
    for (const FilterRow& row : kFilterRows) {
      if (row.set == set)
        filters.push_back({std::string(row.description), std::string(row.pattern)});
    }
    if (set == FilterSet::kPics) {
      filters.push_back(
          {concat(texts.pictures, " (jpg, bmp, gif, png, ico)"), "*.jpg;*.bmp;*.gif;*.png;*.ico"});
    }
    filters.push_back({texts.all_files, "*.*"});
  }).or_go_on();
  return filters;
}

ChosenFile FileOpenDialog(clsErrorHandling& errors, Dialogs& dialogs, FilterSet set,
                          const FilterTexts& texts) {
  ChosenFile chosen;
  procedure(errors, "modAPI_FileOpenDlg.FileOpenDialog", {name_of(set)}, [&] {
    chosen = dialogs.open_file(fFilter(errors, set, texts), [&](const auto& action) {
      procedure(errors, "modAPI_FileOpenDlg.OFNHookProc", {}, action).or_go_on();
    });
  }).or_go_on();
  return chosen;
}

}  // namespace quenda::modAPI_FileOpenDlg

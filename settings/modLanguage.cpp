#include "settings/modLanguage.h"

#include "platform/files.h"
#include "settings/modAPI_INI.h"
#include "support/clsFiles.h"
#include "support/procedure.h"
#include "text/text.h"

namespace quenda {
namespace {

/// Keys that are no texts, and so are never marked for translators.
bool is_unmarked(std::string_view key) {
  return equal_ignoring_case(key, "language") || equal_ignoring_case(key, "countryid");
}

bool is_plain_name(std::string_view name) {
  return name.find_first_of("\\/:") == name.npos && name != "..";
}

}  // namespace

void modLanguage::LanguageInit(std::string_view language) {
  procedure(errors_, "modLanguage.LanguageInit", {language}, [&] {
    const std::string chosen =
        language.empty() ? ini_.GetSettStr("General", "Language", language_, "", true, false)
                         : std::string(language);
    // A name that leads to another folder is none.
    if (is_plain_name(chosen)) language_ = chosen;
    file_ = replace_all("\\base\\language_##.ini", "##", language_);
    file_missing_ = !ini_.HasFile(ini_.GetMainPath(file_));
  }).or_go_on();
}

std::string modLanguage::LoadLangKey(std::string_view key, std::string_view german) {
  std::string text(german);
  procedure(errors_, "modLanguage.LoadLangKey", {key, german}, [&] {
    if (!file_missing_) {
      const std::string value = ini_.GetSettStr("Data", key, "", file_, false, false);
      const bool marked = !errors_.trapping() && !is_unmarked(key);
      if (!value.empty()) {
        text = marked ? concat("[", value, "]") : value;
      } else if (marked) {
        text = concat("?", german, "?");
        Log(key, german);
      }
    }
    text = replace_all(replace_all(text, "<CR>", kCrLf), "<TAB>", "\t");
  }).or_go_on();
  return text;
}

std::string modLanguage::LoadLangKey(TextKey key) { return LoadLangKey(key.key(), key.german()); }

void modLanguage::Log(std::string_view key, std::string_view german) {
  procedure(errors_, "modLanguage.Log", {key, german}, [&] {
    clsFiles(errors_, files_, clock_)
        .FileWrite_Log(concat(errors_.main_folder(), "\\log\\language.log"),
                       concat(errors_.program_and_version(), " | ", key, " | ", german),
                       log_maximum);
  }).or_go_on();
}

}  // namespace quenda

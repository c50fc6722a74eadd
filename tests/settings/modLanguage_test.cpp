#include "settings/modLanguage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "settings/ini/language_keys.h"
#include "tests/shared/settings_service.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kEnglish = "C:\\Quenda\\base\\language_en.ini";

struct Fixture : SettingsService {
  modLanguage language{errors, files, clock, ini};
};

TEST(LanguageInit, TakesTheSettingOrTheGivenName) {
  Fixture f;
  f.language.LanguageInit("");
  EXPECT_EQ(f.language.language(), "");
  EXPECT_TRUE(f.language.file_missing());
  f.files.put("D:\\data\\Quenda.ini", "[General]\r\nLanguage=en\r\n");
  f.files.put(kEnglish, "");
  f.language.LanguageInit("");
  EXPECT_EQ(f.language.language(), "en");
  EXPECT_FALSE(f.language.file_missing());
  f.language.LanguageInit("fr");
  EXPECT_TRUE(f.language.file_missing());
  f.files.put("D:\\data\\Quenda.ini", "[General]\r\nLanguage=\r\n");
  f.language.LanguageInit("");
  EXPECT_EQ(f.language.language(), "fr") << "an empty setting keeps the language";
  f.files.put("D:\\data\\Quenda.ini", "[General]\r\nLanguage=..\\..\\x\r\n");
  f.language.LanguageInit("");
  EXPECT_EQ(f.language.language(), "fr") << "so does one that leads to another folder";
}

TEST(LoadLangKey, FallsBackToGermanAndPutsBreaksIn) {
  Fixture f;
  EXPECT_EQ(f.language.LoadLangKey("Button_Yes"), "Ja");
  f.files.put(kEnglish, "[Data]\r\nButton_Yes=Yes<CR><TAB>!\r\nButton_No=\r\n");
  f.language.LanguageInit("en");
  EXPECT_EQ(f.language.LoadLangKey("Button_Yes"), "Yes\r\n\t!");
  EXPECT_EQ(f.language.LoadLangKey("Button_No"), "Nein");
  EXPECT_EQ(f.language.LoadLangKey("Other", "a<CR>b"), "a\r\nb");
  EXPECT_FALSE(f.files.exists("D:\\log\\language.log"));
}

TEST(LoadLangKey, MarksTextsInDevelopmentRuns) {
  Fixture f;
  f.files.put(kEnglish, "[Data]\r\nButton_Yes=Yes\r\nLanguage=English\r\n");
  f.language.LanguageInit("en");
  f.environment.trapping = false;
  EXPECT_EQ(f.language.LoadLangKey("Button_Yes"), "[Yes]");
  EXPECT_EQ(f.language.LoadLangKey("Button_No"), "?Nein?");
  EXPECT_EQ(f.language.LoadLangKey("LANGUAGE", "Deutsch"), "English");
  EXPECT_EQ(f.language.LoadLangKey("CountryID", "49"), "49");
  EXPECT_EQ(f.files.content("D:\\log\\language.log"),
            "2014/03/02  17:05:09  IMP v1.17 | Button_No | Nein\r\n");
}

namespace fs = std::filesystem;

using Keys = std::set<std::string, std::less<>>;

bool is_key(std::string_view text) {
  constexpr std::string_view kFamilies[] = {"Import_",   "Button_", "String_",  "Message_",
                                            "Settings_", "Menu_",   "Journal_", "Multiline_"};
  return text.find_first_of(" ,.()\n") == std::string_view::npos &&
         std::any_of(std::begin(kFamilies), std::end(kFamilies),
                     [&](std::string_view family) { return text.starts_with(family); });
}

void collect_keys(const fs::path& file, Keys& keys) {
  std::ifstream in(file, std::ios::binary);
  for (std::string piece; std::getline(in, piece, '"');) {
    if (is_key(piece)) keys.insert(piece);
  }
}

Keys keys_in_sources() {
  Keys keys;
  for (const char* folder : {"app", "book", "settings", "sources", "support", "wizard"}) {
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::path(QUENDA_SOURCE_DIR) / folder)) {
      const fs::path& file = entry.path();
      const bool source = file.extension() == ".cpp" || file.extension() == ".h";
      if (source && !file.filename().string().ends_with("_keys.h")) collect_keys(file, keys);
    }
  }
  return keys;
}

// A key that the table lacks would show nothing, one that nobody asks for would be translated in
// vain.
TEST(LanguageKeys, AreThoseThatTheProgramAsksForEachOnce) {
  Keys asked = keys_in_sources();
  asked.erase("Import_ShellEx");  // a name in the trace log
  // The words in the list of delimiters are fixed; language files have them all the same.
  asked.insert({"Import_String_Semicolon", "Import_String_Comma", "Import_String_Tabulator"});
  Keys known;
  for (const auto table : kLanguageTables) {
    for (const LanguageKey& entry : table) {
      EXPECT_TRUE(known.emplace(entry.key).second) << entry.key;
      EXPECT_FALSE(entry.german.empty()) << entry.key;
    }
  }
  EXPECT_EQ(asked, known);
}

TEST(LanguageKeys, StandAllInTheEnglishFileAndNoOthers) {
  std::ifstream in(QUENDA_SOURCE_DIR "/base/language_en.ini", std::ios::binary);
  const std::string english{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  const IniText texts(english);
  std::size_t keys = 0;
  for (const auto table : kLanguageTables) {
    keys += table.size();
    for (const LanguageKey& entry : table) {
      EXPECT_NE(texts.text("Data", entry.key, ""), "") << entry.key;
    }
  }
  EXPECT_EQ(count_of(english, '\n'), keys + 1);
}

}  // namespace
}  // namespace quenda

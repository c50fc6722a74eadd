#include "settings/modLanguage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "settings/language_keys.h"
#include "support/text.h"
#include "tests/shared/settings_service.h"

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

TEST(LanguageKeys, AreUnique) {
  std::set<std::string_view> keys;
  for (const LanguageKey& entry : kLanguageKeys) {
    EXPECT_TRUE(keys.insert(entry.key).second) << entry.key;
    EXPECT_FALSE(entry.german.empty()) << entry.key;
  }
}

TEST(LanguageKeys, StandAllInTheEnglishFileAndNoOthers) {
  std::ifstream in(QUENDA_SOURCE_DIR "/base/language_en.ini", std::ios::binary);
  const std::string english{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  const IniText texts(english);
  for (const LanguageKey& entry : kLanguageKeys) {
    EXPECT_NE(texts.text("Data", entry.key, ""), "") << entry.key;
  }
  EXPECT_EQ(count_of(english, '\n'), kLanguageKeys.size() + 1);
}

}  // namespace
}  // namespace quenda

#include "settings/import_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/shared/settings_service.h"
#include "wizard/header_columns.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::string_view kFile = "D:\\data\\sett_import.ini";

struct Fixture : SettingsService {
  ImportSettings settings;

  void load() {
    load_general_values(ini, settings);
    load_window_position(ini, settings);
    load_page_options(ini, settings);
    load_selections(ini, settings);
    load_header_options(ini, settings);
  }
  /// Saves everything into a new file.
  std::string save() {
    files.put(kFile, "");
    save_page_options(ini, settings);
    save_selections(ini, settings);
    save_header_options(ini, settings);
    save_window_position(ini, settings);
    return files.content(kFile);
  }
};

TEST(ImportSettings, WhatIsNotStoredIsTheDefaultExceptASuffix) {
  Fixture f;
  f.settings.log_count = f.settings.address_flip = 2;
  f.settings.own_country_code = f.settings.selections[0][0] = "x";
  f.settings.name_ext[1] = "mobil";
  f.load();
  EXPECT_EQ(f.settings.log_count, 25);
  EXPECT_EQ(f.settings.address_flip, 0);
  EXPECT_EQ(f.settings.own_country_code, "49");
  EXPECT_EQ(f.settings.selections[0][0], "");
  EXPECT_EQ(f.settings.name_ext[1], "mobil");
}

TEST(ImportSettings, NumbersAreClamped) {
  Fixture f;
  f.files.put("D:\\data\\Quenda.ini", "[General]\r\nLogCount=5\r\nBackupCount=12\r\n");
  f.files.put(kFile, "[Import]\r\nLen=-1\r\nAdrFlip=9\r\nAddChk21=5\r\n");
  f.load();
  EXPECT_EQ(f.settings.log_count, 10);
  EXPECT_EQ(f.settings.backup_count, 9);
  EXPECT_EQ(f.settings.min_name_length, 0);
  EXPECT_EQ(f.settings.address_flip, 5);
  EXPECT_EQ(f.settings.add_check[1][0], 1);
}

TEST(ImportSettings, ComeBackAsTheyWereSavedButForTheSuffixesOfOutlook) {
  Fixture f;
  ImportSettings& s = f.settings;
  s.ask = s.ol_name_flip = s.ol_address_flip = s.name_flip = 1;
  s.min_name_length = 0;
  s.ol_number = "11111111111";
  s.ol_adress = "00000000000111";
  s.address_flip = 4;
  s.name_ext = {"mobil", "", "Fax"};
  s.add_check = {{{1, 0}, {0, 1}, {0, 0}}};
  s.selections = {{{"Vorname", "Nachname", ""}, {"Mobil", "", ""}, {"Ort", "PLZ", "Str"}, {}}};
  s.selection_counts = {2, 1, 3, 0};
  s.top = 1200;
  s.left = 40;
  const std::string saved = f.save();
  EXPECT_THAT(saved, HasSubstr("SelAddress12=PLZ\r\n"));
  s = ImportSettings();
  f.load();
  EXPECT_EQ(f.save(), saved);
  s.ol_name_ext[3] = "gesch.";
  EXPECT_THAT(f.save(), HasSubstr("OLNameExt4=gesch.\r\n"));
  s = ImportSettings();
  f.load();
  EXPECT_EQ(s.ol_name_ext[3], "");
}

TEST(ImportSettings, SavingOneColumnEmptiesTheOtherSlots) {
  Fixture f;
  f.settings.selections[kNames] = {"Name", "old", "old"};
  f.settings.selection_counts[kNames] = 1;
  const std::string saved = f.save();
  EXPECT_THAT(saved, HasSubstr("SelNames1=Name\r\nSelNames2=\r\nSelNumbers1=\r\n"));
  EXPECT_THAT(saved, HasSubstr("SelAddress23=\r\n"));
}

TEST(ImportSettings, CountsFilledSlotsAlsoBehindEmptyOnes) {
  Fixture f;
  f.files.put(kFile, "[Import]\r\nSelNumbers2=Tel\r\nSelNumbers3=Mobil\r\nSelNames3=x\r\n");
  f.load();
  EXPECT_THAT(f.settings.selections[kNumbers], ElementsAre("", "Tel", "Mobil"));
  EXPECT_THAT(f.settings.selection_counts, ElementsAre(0, 2, 0, 0));
}

}  // namespace
}  // namespace quenda

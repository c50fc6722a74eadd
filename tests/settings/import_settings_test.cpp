#include "settings/import_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "settings/modAPI_INI.h"
#include "support/text.h"
#include "tests/shared/error_service.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Fixture : ErrorService {
  SuitePaths paths{"C:\\Quenda", "", "D:", "D:\\data\\", false};
  modAPI_INI ini{errors, files, paths};
  ImportSettings settings;

  void put(std::string_view text) { files.put("D:\\data\\sett_import.ini", text); }
  void load_all() {
    load_general_values(ini, settings);
    load_window_position(ini, settings);
    load_page_options(ini, settings);
    load_selections(ini, settings);
    load_header_options(ini, settings);
  }
  [[nodiscard]] std::string saved() const { return files.content("D:\\data\\sett_import.ini"); }
};

TEST(ImportSettings, FreshInstallationHasTheDefaults) {
  Fixture f;
  f.settings.ask = f.settings.top = f.settings.log_count = 2;
  f.settings.min_name_length = 0;
  f.settings.own_country_code = f.settings.own_area_code = f.settings.ol_number = "x";
  f.settings.selections[0][0] = "x";
  f.settings.name_ext[1] = "mobil";
  f.load_all();
  EXPECT_EQ(f.settings.ask, 0);
  EXPECT_EQ(f.settings.min_name_length, 1);
  EXPECT_EQ(f.settings.top, 500);
  EXPECT_EQ(f.settings.left, 500);
  EXPECT_EQ(f.settings.own_country_code, "49");
  EXPECT_EQ(f.settings.own_area_code, "");
  EXPECT_EQ(f.settings.log_count, 25);
  EXPECT_EQ(f.settings.ol_number, "10010010000");
  EXPECT_EQ(f.settings.ol_adress, "10010000000000");
  EXPECT_EQ(f.settings.selections[0][0], "");
  EXPECT_EQ(f.settings.name_ext[1], "mobil") << "a suffix that is not stored stays";
}

TEST(ImportSettings, NumbersAreClamped) {
  Fixture f;
  f.files.put("D:\\data\\Quenda.ini", "[General]\r\nLogCount=5\r\nBackupCount=12\r\nmyVWO=30\r\n");
  f.put(
      "[Import]\r\nAsk=7\r\nLen=-1\r\nAdrFlip=9\r\nAddChk21=5\r\n"
      "[Dimensions]\r\nImportTop=-300\r\nImportLeft=90000\r\n");
  f.load_all();
  EXPECT_EQ(f.settings.log_count, 10);
  EXPECT_EQ(f.settings.backup_count, 9);
  EXPECT_EQ(f.settings.own_area_code, "30");
  EXPECT_EQ(f.settings.ask, 2);
  EXPECT_EQ(f.settings.min_name_length, 0);
  EXPECT_EQ(f.settings.address_flip, 5);
  EXPECT_EQ(f.settings.add_check[1][0], 1);
  EXPECT_EQ(f.settings.top, 0);
  EXPECT_EQ(f.settings.left, 90000);
}

TEST(ImportSettings, ComeBackAsTheyWereSaved) {
  Fixture f;
  ImportSettings& s = f.settings;
  s.ask = 1;
  s.min_name_length = 0;
  s.ol_name_flip = 1;
  s.ol_number = "11111111111";
  s.ol_adress = "00000000000111";
  s.ol_name_ext = {"privat", "", "", "gesch."};
  s.name_flip = 1;
  s.address_flip = 4;
  s.name_ext = {"mobil", "", "Fax"};
  s.add_check = {{{1, 0}, {0, 1}, {0, 0}}};
  s.selections = {{{"Vorname", "Nachname", ""}, {"Mobil", "", ""}, {"Ort", "PLZ", "Str"}, {}}};
  s.selection_counts = {2, 1, 3, 0};
  s.top = 1200;
  s.left = 40;
  save_page_options(f.ini, s);
  save_selections(f.ini, s);
  save_header_options(f.ini, s);
  save_window_position(f.ini, s);
  const ImportSettings before = s;
  s = ImportSettings();
  f.load_all();
  EXPECT_EQ(s.ask, before.ask);
  EXPECT_EQ(s.min_name_length, before.min_name_length);
  EXPECT_EQ(s.ol_name_flip, before.ol_name_flip);
  EXPECT_EQ(s.ol_number, before.ol_number);
  EXPECT_EQ(s.ol_adress, before.ol_adress);
  EXPECT_EQ(s.name_flip, before.name_flip);
  EXPECT_EQ(s.address_flip, before.address_flip);
  EXPECT_EQ(s.name_ext, before.name_ext);
  EXPECT_EQ(s.add_check, before.add_check);
  EXPECT_EQ(s.selections, before.selections);
  EXPECT_EQ(s.selection_counts, before.selection_counts);
  EXPECT_EQ(s.top, before.top);
  EXPECT_EQ(s.left, before.left);
  EXPECT_EQ(s.ol_name_ext[0], "") << "saved, but never read back";
  EXPECT_THAT(f.saved(), HasSubstr("OLNameExt4=gesch.\r\n"));
}

TEST(ImportSettings, SavingOneColumnEmptiesTheOtherSlots) {
  Fixture f;
  f.put("[Import]\r\nSelNames1=a\r\nSelNames2=b\r\n");
  f.settings.selections[kNames] = {"Name", "old", "old"};
  f.settings.selection_counts[kNames] = 1;
  save_selections(f.ini, f.settings);
  EXPECT_THAT(f.saved(), HasSubstr("SelNames1=Name\r\nSelNames2=\r\n"));
  EXPECT_THAT(f.saved(), testing::Not(HasSubstr("SelNames3")));
  EXPECT_THAT(f.saved(), HasSubstr("SelAddress23=\r\n"));
}

TEST(ImportSettings, CountsFilledSlotsAlsoBehindEmptyOnes) {
  Fixture f;
  f.put("[Import]\r\nSelNumbers2=Tel\r\nSelNumbers3=Mobil\r\nSelNames3=x\r\n");
  load_selections(f.ini, f.settings);
  EXPECT_THAT(f.settings.selections[kNumbers], ElementsAre("", "Tel", "Mobil"));
  EXPECT_THAT(f.settings.selection_counts, ElementsAre(0, 2, 0, 0));
}

}  // namespace
}  // namespace quenda

#include "settings/modAPI_INI.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/shared/settings_service.h"

namespace quenda {
namespace {

struct Fixture : SettingsService {
  void stored(std::string_view value) {
    files.put("D:\\data\\Quenda.ini", std::string("[S]\r\nk=") + std::string(value) + "\r\n");
  }
};

TEST(GetMainPath, MapsTheSuitesFolders) {
  Fixture f;
  EXPECT_EQ(f.ini.GetMainPath(""), "D:\\data\\Quenda.ini");
  EXPECT_EQ(f.ini.GetMainPath("\\data\\x.ini"), "D:\\data\\x.ini");
  EXPECT_EQ(f.ini.GetMainPath("\\update\\x.ini"), "D:\\update\\x.ini");
  EXPECT_EQ(f.ini.GetMainPath("\\base\\x.ini"), "C:\\Quenda\\base\\x.ini");
  EXPECT_EQ(f.ini.GetMainPath("\\Data\\x.ini"), "\\Data\\x.ini");
  EXPECT_EQ(f.ini.GetMainPath("E:\\data\\x.ini"), "E:\\data\\x.ini");
}

TEST(GetSettStr, ReplacesByTheDefaultWhereAsked) {
  Fixture f;
  const auto read = [&](bool empty_to_default, bool numeric_only) {
    return f.ini.GetSettStr("S", "k", "D", "", empty_to_default, numeric_only);
  };
  EXPECT_EQ(read(false, false), "D");
  struct Case {
    std::string_view value, plain, not_empty, numeric;
  };
  for (const Case& c :
       {Case{"4 9", "4 9", "4 9", "D"}, Case{"49", "49", "49", "49"}, Case{"", "", "D", "D"}}) {
    f.stored(c.value);
    EXPECT_EQ(read(false, false), c.plain);
    EXPECT_EQ(read(true, false), c.not_empty);
    EXPECT_EQ(read(false, true), c.numeric);
  }
}

TEST(GetSettLng, ClampsUnlessBothBoundsAreZero) {
  Fixture f;
  const auto read = [&](std::int32_t min, std::int32_t max) {
    return f.ini.GetSettLng("S", "k", 25, min, max, false, "");
  };
  EXPECT_EQ(read(10, 1000), 25);
  f.stored("3");
  EXPECT_EQ(read(10, 1000), 10);
  f.stored("-8");
  EXPECT_EQ(read(0, 0), -8);
}

TEST(GetSettBool, IsTrueForPositiveNumbersOnly) {
  Fixture f;
  EXPECT_FALSE(f.ini.GetSettBool("S", "k", true, "")) << "a missing key is false all the same";
  using Case = std::pair<std::string_view, bool>;
  for (const auto& [text, expected] : {Case{"1", true}, Case{"77x", true}, Case{"0", false},
                                       Case{"-1", false}, Case{"True", false}, Case{"", false}}) {
    f.stored(text);
    EXPECT_EQ(f.ini.GetSettBool("S", "k", !expected, ""), expected) << text;
  }
}

TEST(Range, ClampsOrReplaces) {
  EXPECT_EQ(limited(0, 0, -5, false, 0), 0);
  EXPECT_EQ(limited(0, 0, 70000, false, 0), 70000) << "an upper bound of 0 is none";
  EXPECT_EQ(limited(0, 1, 2, false, 0), 1);
  EXPECT_EQ(limited(1, 3, 9, true, 2), 2);
  EXPECT_EQ(limited(1, 3, 0, true, 2), 2);
  EXPECT_EQ(limited(1, 3, 3, true, 2), 3);
}

TEST(SetSettStr, WritesUnlessProtected) {
  Fixture f;
  f.ini.SetSettStr("Import", "Ask", "2", "\\data\\a.ini");
  EXPECT_EQ(f.files.content("D:\\data\\a.ini"), "[Import]\r\nAsk=2\r\n");
  EXPECT_EQ(f.ini.GetSettLng("Import", "Ask", 0, 0, 2, false, "\\data\\a.ini"), 2);
  f.ini.SetSettStr("Import", "Ask", "2", "\\data\\a.ini");
  EXPECT_EQ(f.files.writes("D:\\data\\a.ini"), 1) << "what is there already is not written again";
  f.ini.write_protection = true;
  f.ini.SetSettStr("Import", "Ask", "1", "\\data\\a.ini");
  EXPECT_EQ(f.files.content("D:\\data\\a.ini"), "[Import]\r\nAsk=2\r\n");
}

TEST(SetSettStr, NeverOverwritesAFileThatItCannotRead) {
  Fixture f;
  f.stored("v");
  f.files.refuse_reading("D:\\data\\Quenda.ini", 70);
  f.ini.SetSettStr("S", "k", "w", "");
  EXPECT_EQ(f.files.content("D:\\data\\Quenda.ini"), "[S]\r\nk=v\r\n");
  EXPECT_THAT(f.reports, testing::ElementsAre(testing::Pair("modAPI_INI.SetSettStr", 70)));
}

TEST(modAPI_INI, SeesWhatOtherProgramsWriteAndTakesDefaultsFromWhatItCannotRead) {
  Fixture f;
  const auto read = [&] { return f.ini.GetSettStr("S", "k", "D", "", false, false); };
  for (const auto* text : {"1", "2"}) {
    f.stored(text);
    EXPECT_EQ(read(), text);
  }
  f.stored("3");
  f.files.refuse_reading("D:\\data\\Quenda.ini", 75);
  EXPECT_EQ(read(), "D");
  EXPECT_TRUE(f.reports.empty());
}

}  // namespace
}  // namespace quenda

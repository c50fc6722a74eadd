#include "settings/suite_paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/modAPI_INI.h"
#include "settings/suite_specs.h"
#include "tests/shared/error_service.h"

namespace quenda {
namespace {

struct Fixture : ErrorService {
  FakeSystem system;
  SuitePaths paths{"C:\\Program Files\\Quenda", "", "", "", false};
  SuiteSpecs specs;
  modAPI_INI ini{errors, files, paths};

  bool load(std::string_view section_text) {
    if (!section_text.empty()) {
      files.put("C:\\Program Files\\Quenda\\Quendapaths.ini",
                std::string("[Paths]\r\n") + std::string(section_text));
    }
    return LoadSavePaths(errors, ini, files, system, paths, specs);
  }
  void put_specs(std::string_view text) {
    files.put("C:\\Program Files\\Quenda\\Quendaspec.ini", text);
  }
};

TEST(LoadSavePaths, ChoosesDataRootAndBookFolder) {
  struct Case {
    std::string_view settings;
    bool protects;
    std::string_view data_root;
    std::string_view book_folder;
  };
  const std::string_view common = "C:\\ProgramData\\Quenda";
  const std::string_view program = "C:\\Program Files\\Quenda";
  const Case cases[] = {
      {"", true, common, "C:\\ProgramData\\Quenda\\data\\"},
      {"x=1\r\n", true, common, "C:\\ProgramData\\Quenda\\data\\"},
      {"ProgramData=7,5\r\n", true, common, "C:\\ProgramData\\Quenda\\data\\"},
      {"ProgramData=0\r\n", true, common, "C:\\ProgramData\\Quenda\\data\\"},
      {"ProgramData=0\r\n", false, program, "C:\\Program Files\\Quenda\\data\\"},
      {"ProgramData=\r\n", false, program, "C:\\Program Files\\Quenda\\data\\"},
      {"ProgramData=\\\r\n", false, program, "C:\\Program Files\\Quenda\\data\\"},
      {"ProgramData=E:\\Suite\\\r\n", true, "E:\\Suite", "E:\\Suite\\data\\"},
      {"ProgramData=E:\\Suite\r\nBookPath=5\r\n", true, "E:\\Suite", "E:\\Suite\\data\\"},
      {"ProgramData=E:\\Suite\r\nBookPath=F:\\Book\r\n", true, "E:\\Suite", "F:\\Book\\"},
      {"BookPath=F:\\Book\\\r\n", true, common, "F:\\Book\\"},
  };
  for (const Case& c : cases) {
    Fixture f;
    f.system.protects = c.protects;
    EXPECT_TRUE(f.load(c.settings));
    EXPECT_EQ(f.paths.data_root, c.data_root) << c.settings;
    EXPECT_EQ(f.paths.book_folder, c.book_folder) << c.settings;
    EXPECT_EQ(f.paths.book_file(), std::string(c.book_folder) + "Quendabook.txt");
  }
}

TEST(LoadSavePaths, FindsTheProgramFolderInsideProgramFilesAsWindowsComparesPaths) {
  for (const std::string folder : {"c:\\program files\\Quenda", "C:/PROGRAM FILES/Quenda",
                                   "C:\\PROGRA~1\\Quenda", "C:\\Programme\\Quenda"}) {
    Fixture f;
    f.paths.program_folder = folder;
    f.files.put(folder + "\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
    EXPECT_TRUE(LoadSavePaths(f.errors, f.ini, f.files, f.system, f.paths, f.specs));
    EXPECT_EQ(f.paths.data_root,
              folder.ends_with("Programme\\Quenda") ? folder : "C:\\ProgramData\\Quenda");
  }
}

TEST(LoadSavePaths, ReadsBookRefresh) {
  Fixture f;
  f.load("BookRefresh=1\r\n");
  EXPECT_TRUE(f.paths.book_refresh);
}

TEST(LoadSavePaths, TellsTheUserWhereItFailed) {
  struct BrokenSystem : FakeSystem {
    [[nodiscard]] std::string special_folder(int /*number*/) const override { raise_fault(5); }
  };
  Fixture f;
  const BrokenSystem broken;
  EXPECT_FALSE(LoadSavePaths(f.errors, f.ini, f.files, broken, f.paths, f.specs));
  EXPECT_THAT(f.boxes,
              testing::ElementsAre(FakeDialogs::Box{"Error in Function \"LoadSavePaths\" at Line 2",
                                                    MessageStyle::kCritical, ""}));
}

TEST(LoadSpecs, LeavesItsValuesWithoutAFile) {
  Fixture f;
  f.load("");
  EXPECT_EQ(f.specs, SuiteSpecs());
  EXPECT_TRUE(f.specs.ModeMail);
}

TEST(LoadSpecs, MissingLogModesReadAsFalseAndExportFollowsItsLog) {
  Fixture f;
  f.put_specs("[Debug]\r\nTraceMode=1\r\nLogExport=1\r\n[LogMode]\r\nUpdate=1\r\nExport=0\r\n");
  f.load("");
  SuiteSpecs expected;
  expected.TraceMode = expected.LogExport = expected.ModeExport = expected.ModeUpdate = true;
  expected.ModeMail = expected.ModeInverse = expected.ModeSend2Script = false;
  expected.ModeNTService = false;
  EXPECT_EQ(f.specs, expected);
  ErrorEnvironment environment;
  apply_switches(f.specs, environment);
  EXPECT_TRUE(environment.trace_mode);
  EXPECT_TRUE(environment.LogExport);
  EXPECT_FALSE(environment.LogTiming);
  f.specs.LogOther = f.specs.LogTiming = true;
  apply_switches(f.specs, environment);
  EXPECT_TRUE(environment.LogOther && environment.LogTiming);
}

TEST(LoadSpecs, ReadsMasksOnlyWhenTold) {
  const std::string masks =
      "InfoMask_CAUSE=1\r\nInfoMask_EARLYB3CONNECT =1\r\nInfoMask_SENDCOMPLET=1\r\n"
      "CIPMask_SPEECH=1\r\nCIPMask_TELEPHONY=1\r\n";
  Fixture f;
  f.put_specs("[CAPI]\r\n" + masks);
  f.load("");
  EXPECT_EQ(f.specs.info_mask, 0);
  f.put_specs("[CAPI]\r\nLoadThisValues=1\r\n" + masks);
  f.load("");
  EXPECT_EQ(f.specs.info_mask, 0b1010'0000'0001);
  EXPECT_EQ(f.specs.cip_mask, 0b100'0000'0010U);
}

}  // namespace
}  // namespace quenda

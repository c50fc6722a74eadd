#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/modAPI_FileOpenDlg.h"
#include "support/shell.h"
#include "tests/shared/error_service.h"
#include "wizard/shell/progress_percent.h"

namespace quenda {
namespace {

using testing::ElementsAre;

const FilterTexts kTexts = {"Alle Dateien", "Bilder"};
const FileFilter kAll = {"Alle Dateien", "*.*"};

TEST(FileFilters, EndWithAllFiles) {
  ErrorService service;
  const auto filters = [&](FilterSet set) {
    return modAPI_FileOpenDlg::fFilter(service.errors, set, kTexts);
  };
  EXPECT_THAT(filters(FilterSet::kAll), ElementsAre(kAll));
  EXPECT_THAT(filters(FilterSet::kISpy), ElementsAre(FileFilter{"ISpy log", "ISpy.log"}, kAll));
  EXPECT_THAT(filters(FilterSet::kPics), ElementsAre(FileFilter{"Bilder (jpg, bmp, gif, png, ico)",
                                                                "*.jpg;*.bmp;*.gif;*.png;*.ico"},
                                                     kAll));
  EXPECT_EQ(filters(FilterSet::kHtml).size(), 4U);
}

TEST(FileOpenDialog, OutlivesAFaultOfItsHook) {
  ErrorService service;
  FakeDialogs dialogs;
  dialogs.paths = {"C:\\a.csv"};
  dialogs.on_folder_shown = [] { raise_fault(5); };
  EXPECT_EQ(
      modAPI_FileOpenDlg::FileOpenDialog(service.errors, dialogs, FilterSet::kAll, kTexts).path,
      "C:\\a.csv");
  EXPECT_THAT(service.reports, ElementsAre(testing::Pair("modAPI_FileOpenDlg.OFNHookProc", 5)));
}

TEST(ShellEx, TurnsCodesIntoTextsAndTracesFailures) {
  ErrorService service;
  service.environment.trace_mode = true;
  FakeSystem system;
  const auto result = [&](int code) {
    system.shell_result = code;
    return modImport::ShellEx(service.errors, system, "Open", "a.txt", "", "");
  };
  EXPECT_EQ(result(33), "");
  EXPECT_EQ(result(32), "DLL not found");
  EXPECT_EQ(result(0), "Unknown error");
  EXPECT_EQ(result(4), "Unknown error");
  EXPECT_EQ(result(-1), "Unknown error");
  for (int i = 0; i < 44; ++i) service.errors.LogDebug_Trace("fill", {});
  EXPECT_THAT(service.files.content("D:\\log\\trace.log"),
              testing::HasSubstr("Import_ShellEx 01(S:Open, S:a.txt, S:, S:)"));
}

TEST(ProgressPercent, RoundsClampsAndNeverDividesByNothing) {
  EXPECT_EQ(progress_percent(1, 0, 3), 33);
  EXPECT_EQ(progress_percent(2, 0, 3), 67);
  EXPECT_EQ(progress_percent(0, 1, 100), 1);
  EXPECT_EQ(progress_percent(500, 1, 100), 100);
  EXPECT_EQ(progress_percent(5, 0, 0), 100);
  EXPECT_EQ(progress_percent(5, 0, -3), 100);
  EXPECT_EQ(progress_percent(3000000000, 0, 4000000000), 75);
}

}  // namespace
}  // namespace quenda

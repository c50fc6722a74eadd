#include "app/quenda-import/batch_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "tests/shared/fakes.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::HasSubstr;

constexpr std::string_view kFile = "C:\\contacts.csv";
constexpr std::string_view kBook = "D:\\Suite\\data\\Quendabook.txt";
constexpr std::string_view kSettings = "D:\\Suite\\data\\sett_import.ini";

/// A suite in "D:\Suite" with the own codes 0049 and 030, on a machine in memory.
class BatchRunTest : public testing::Test {
 protected:
  BatchRunTest() {
    machine_.files.put("D:\\Suite\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
    machine_.files.put("D:\\Suite\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
    machine_.system.protects = false;
    options_.suite = "D:\\Suite\\";
    options_.file = kFile;
    options_.columns[kNames] = {"Name"};
    options_.columns[kNumbers] = {"Festnetz"};
  }

  void take_file(std::string_view content) { machine_.files.put(kFile, content); }

  int run(std::istream* answers = nullptr) {
    out_.str("");
    errors_.str("");
    return run_batch(options_,
                     {machine_.files, machine_.clock, machine_.system, machine_.automation},
                     {out_, errors_, answers});
  }
  [[nodiscard]] std::string book() const { return machine_.files.content(kBook); }

  FakeMachine machine_;
  BatchOptions options_;
  std::ostringstream out_;
  std::ostringstream errors_;
};

constexpr std::string_view kTwoContacts =
    "Name;Vorname;Festnetz;Mobil;Ort;Straße\r\n"
    "Falk;Marlene;030 5550123;0171 3920041;Berlin;Allee 5\r\n"
    "Mayr;Otto;0431 555017;;Wien;Zeile 20\r\n";

TEST_F(BatchRunTest, WritesTheBookAndLeavesTheSettingsAlone) {
  take_file(kTwoContacts);
  machine_.files.put(kSettings, "[Import]\r\nSelNames1=Vorname\r\nAsk=2\r\n");
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(out_.str(), "data\n");
  EXPECT_EQ(book(),
            "Falk;0305550123;0;0;0;0;;;[vcd()vcd]\r\nMayr;0431555017;0;0;0;0;;;[vcd()vcd]\r\n");
  EXPECT_EQ(machine_.files.writes(kSettings), 0);
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(out_.str(), "nodata\n");
  EXPECT_EQ(machine_.files.writes(kBook), 1);
}

TEST_F(BatchRunTest, TheSettingsMayWantAReportAndACopy) {
  take_file(kTwoContacts);
  machine_.files.put(kBook, "Zahn;0405550199;0;0;0;0;;;[vcd()vcd]\r\n");
  machine_.files.put(kSettings, "[Import]\r\nBackup=1\r\nReport=D:\\Suite\\data\\report.json\r\n");
  EXPECT_EQ(run(), kExitDone);
  EXPECT_THAT(machine_.files.content("D:\\Suite\\data\\report.json"),
              HasSubstr("\"result\":\"data\",\"fates\":{\"added\":2}"));
  EXPECT_EQ(machine_.files.writes("D:\\Suite\\data\\report.json"), 2);  // head and rows
  EXPECT_EQ(machine_.files.content("D:\\Suite\\data\\backup\\Quendabook 2014-03-02 17-05-09.txt"),
            "Zahn;0405550199;0;0;0;0;;;[vcd()vcd]\r\n");
  machine_.files.put(kSettings, "[Import]\r\nReport=D:\\Suite\\data\\Quendabook.txt\r\n");
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Telefonbuch \xC3\xBC"
                                       "berschreiben"));
}

TEST_F(BatchRunTest, OptionsDriveTheControls) {
  take_file(kTwoContacts);
  options_.columns = {{{"Vorname", "Name"}, {"Mobil", "Festnetz"}, {"Straße", "Ort"}, {}}};
  options_.columns[kAddress1] = {"Ort"};
  options_.flip_name = true;
  options_.suffixes[1] = "(m;x)";
  options_.bindings[0] = 1;
  options_.dry_run = true;
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(out_.str(),
            "Marlene Falk\t0305550123\tBerlin\nMarlene Falk (m,x)\t01713920041\t\n"
            "Otto Mayr\t0431555017\tWien\n");
  EXPECT_EQ(book(), "");
}

TEST_F(BatchRunTest, SavedColumnsCountWhereNoneIsGiven) {
  take_file(kTwoContacts);
  options_.columns = {};
  options_.dry_run = true;
  machine_.files.put(kSettings, "[Import]\r\nSelNames1=Vorname\r\nSelNumbers1=Mobil\r\n");
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(out_.str(), "Marlene\t01713920041\t\n");
}

TEST_F(BatchRunTest, AQuestionIsAnsweredOnTheTerminalOrEndsTheRun) {
  take_file(kTwoContacts);
  const std::string before = "Alt;0305550123;0;0;7;0;;;[vcd()vcd]\r\n";
  machine_.files.put(kBook, before);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("--existing"));
  EXPECT_EQ(book(), before);

  std::istringstream silence;
  EXPECT_EQ(run(&silence), kExitRefused);
  EXPECT_EQ(book(), before);

  std::istringstream answers("?\nn\n");
  EXPECT_EQ(run(&answers), kExitDone);
  EXPECT_EQ(book(),
            "Falk;0305550123;0;0;7;0;;;[vcd()vcd]\r\nMayr;0431555017;0;0;0;0;;;[vcd()vcd]\r\n");
}

TEST_F(BatchRunTest, RefusalsNameTheReasonAndWriteNothing) {
  struct Case {
    std::string name;
    std::string content;
    std::function<void(BatchOptions&)> change;
    std::string reason;
  };
  const std::string two(kTwoContacts);
  const auto nothing = [](BatchOptions&) {};
  const Case cases[] = {
      {"no file", two, [](BatchOptions& o) { o.file = "C:\\none.csv"; }, "C:\\none.csv"},
      {"empty file", "", nothing, "leer"},
      {"no delimiter", "Name\r\nFalk\r\n", nothing, "Kein Trennzeichen"},
      {"delimiter not in the header", "Name\r\nFalk;030\r\n",
       [](BatchOptions& o) { o.delimiter = 0; }, "Keine zul\xC3\xA4ssigen Trennzeichen"},
      {"unknown column", two, [](BatchOptions& o) { o.columns[kAddress2] = {"Fax"}; }, "\"Fax\""},
      {"no name column", two, [](BatchOptions& o) { o.columns[kNames].clear(); }, "--name"},
      {"no number column", two, [](BatchOptions& o) { o.columns[kNumbers].clear(); }, "--number"},
      {"no saved columns", two, [](BatchOptions& o) { o.columns = {}; }, "--name"},
      {"area code", two, [](BatchOptions& o) { o.area = "30"; }, "\"30\""},
      {"country code", two, [](BatchOptions& o) { o.country = "49"; }, "\"49\""},
      {"no Outlook", two,
       [](BatchOptions& o) {
         o.file.clear();
         o.outlook = true;
       },
       "Outlook"},
  };
  const BatchOptions usual = options_;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    options_ = usual;
    take_file(c.content);
    c.change(options_);
    EXPECT_EQ(run(), kExitRefused);
    EXPECT_EQ(out_.str(), "");
    EXPECT_THAT(errors_.str(), HasSubstr(c.reason));
    EXPECT_FALSE(machine_.files.exists(kBook));
  }
}

TEST_F(BatchRunTest, ACompositionThatEndsEarlyLeavesTheNumbersBehindItUnread) {
  // The padding of short records ends at one with too many fields, so the composing ends at the
  // next one that lacks a chosen column.
  take_file(concat("Name;Ort;Tel\r\nFalk;Berlin;030 5550123\r\nFalk;Berlin;030 5550123\r\nX",
                   std::string(40000, ';'), "\r\nMayr;Wien\r\nOtto;Graz;\"0431|555017\"\r\n"));
  options_.columns = {};
  options_.columns[kNames] = {"Name"};
  options_.columns[kNumbers] = {"Tel"};
  options_.report = "C:\\report.csv";
  EXPECT_EQ(run(), kExitRefused);
  const std::string report = machine_.files.content("C:\\report.csv");
  EXPECT_THAT(report, HasSubstr("\r\n2;1;1;Falk;0305550123;030 5550123;;ungelesen;"));
  EXPECT_THAT(report, HasSubstr("\r\n3;2;1;Falk;0305550123;030 5550123;;wiederholt;"));
  EXPECT_THAT(report, HasSubstr("\r\n4;3;0;"));
  EXPECT_THAT(report, HasSubstr("\r\n5;4;0;"));
  EXPECT_THAT(report, HasSubstr("\r\n6;5;1;;;\"0431;555017\";;ungelesen;"));
}

TEST_F(BatchRunTest, FaultsAreReportedWithTheirProcedure) {
  take_file(kTwoContacts);
  machine_.files.refuse_reading(kFile, kFaultPermissionDenied);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Fehler 70"));

  machine_.files.refuse_reading(kFile, 0);
  machine_.files.refuse_writing(kBook, kFaultDiskFull);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("fMain.Add: Fehler 61"));
}

TEST_F(BatchRunTest, SaysWhatIsWrongWithTheLineEndsOfTheBook) {
  constexpr std::string_view kLines = "A;1;0;0;0;0;;;[vcd()vcd]\nB;2;0;0;0;0;;;[vcd()vcd]\n";
  take_file(kTwoContacts);
  machine_.files.put(kBook, std::string(kLines) + "\r\n");
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Zeile ohne CR LF am Ende: 1"));
  EXPECT_EQ(machine_.files.writes(kBook), 0);
  machine_.files.put(kBook, kLines);
  EXPECT_EQ(run(), kExitDone);
  EXPECT_THAT(errors_.str(), HasSubstr("Warnung: Das Telefonbuch hat LF statt CR LF"));
  EXPECT_TRUE(book().starts_with(replace_all(kLines, "\n", "\r\n")));
}

TEST_F(BatchRunTest, WarnsOfOtherEncodings) {
  const std::string rows = ";Festnetz\r\nJ;030 5550123\r\n";
  options_.dry_run = true;
  const std::pair<std::string, bool> cases[] = {{"Name;Gr\xFCn", false},
                                                {"Name;Gr\xC3\xBCn", true},
                                                {"Name;ASCII", false},
                                                {"\xEF\xBB\xBFX;Name", true},
                                                {"Name;Gr\xC3\xBC\xDFt", true}};
  for (const auto& [header, utf8] : cases) {
    take_file(header + rows);
    run();
    EXPECT_EQ(errors_.str().find("UTF-8") != std::string::npos, utf8) << header;
  }
  take_file(std::string("\xFF\xFEN\0a\0", 6));
  run();
  EXPECT_THAT(errors_.str(), HasSubstr("UTF-16"));
}

TEST_F(BatchRunTest, AnISpyLogNeedsNeitherColumnsNorCodes) {
  options_.file = "C:\\ISPY.LOG";
  options_.columns = {};
  options_.area = "";
  machine_.files.put(options_.file, "2014-03-02 17:05:09 Erika [#0301234567] x\r\n");
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(book(), "Erika;0301234567;0;0;0;0;;;[vcd()vcd]\r\n");
}

TEST_F(BatchRunTest, AnEmptyISpyLogIsALogWithoutCallers) {
  options_.file = "C:\\ispy.log";
  options_.columns = {};
  machine_.files.put(options_.file, "");
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(out_.str(), "nodata\n");
  options_.dry_run = true;
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(out_.str(), "");
}

}  // namespace
}  // namespace quenda

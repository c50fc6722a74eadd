#include "support/clsErrorHandling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <optional>
#include <string>

#include "support/procedure.h"
#include "support/report_text.h"
#include "tests/shared/error_service.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Pair;

constexpr std::string_view kTraceLog = "D:\\log\\trace.log";

TEST(ReportText, ShowsValuesByKind) {
  EXPECT_EQ(GetStringFromParamArray({}), "");
  EXPECT_EQ(GetStringFromParamArray({"a\r\nb", true, -7}), "(S:a<CR>b, B:1, N:-7)");
  EXPECT_EQ(GetStringFromParamArray({{1, "two", false}, "end"}), "(N:1, S:two, B:0, S:end)");
  EXPECT_EQ(GetStringFromParamArray({TraceValue(), "x", TraceValue()}), "(S:x, )");
  EXPECT_EQ(GetStringFromParamArray({TraceValue()}), "");
}

TEST(ReportText, CountsElapsedTimeAcrossMonths) {
  const LocalTime start{2014, 2, 28, 23, 0, 0};
  EXPECT_EQ(ElapsedTimeText(start, {2014, 3, 1, 0, 2, 3}), "0:01:02:03");
  EXPECT_EQ(ElapsedTimeText({2014, 3, 11, 0, 2, 3}, start), "10:01:02:03");
  EXPECT_EQ(ElapsedTimeText({2013, 12, 31, 0, 0, 0}, {2014, 1, 1, 0, 0, 0}), "1:00:00:00");
  constexpr int kFirst = std::numeric_limits<int>::min();
  EXPECT_EQ(ElapsedTimeText({kFirst, 1, 1, 0, 0, 0}, {kFirst, 1, 2, 0, 0, 0}), "1:00:00:00");
}

TEST(ErrorReport, IsOneLine) {
  struct Case {
    std::string_view program_code;
    int number, statement;
    std::string_view parameter, line;
  };
  const Case cases[] = {
      {"IMP", 9, 12, "", "IMP v1.17 fMain.X, Line: 12  + 9 + @"},
      {"IMP", 9, 7, "", "IMP v1.17 fMain.X, Line:  7  + 9 + @"},
      {"", 9, 0, "", "NON v1.17 fMain.X + 9 + @"},
      {"IMP", 9, 0, "a\tb", "IMP v1.17 fMain.X + 9 + @ Params(S:a#[9]b)"},
      {"PRG", 9, 0, "", "PRG v1.170:00:01:05  fMain.X + 9 + @"},
      {"IMP", 0, 0, "", "IMP v1.17 fMain.X"},  // nothing happened
  };
  for (const Case& c : cases) {
    ErrorService service;
    service.environment.program_code = c.program_code;
    service.clock.time.minute += 1;
    service.clock.time.second += 5;
    const std::initializer_list<TraceValue> parameters = {c.parameter};
    const TraceValues none;
    if (c.number == 0) {
      service.errors.ErrorLogForceWrite("fMain.X", none);
    } else {
      service.errors.ErrorLogNew("fMain.X", c.parameter.empty() ? none : parameters,
                                 RuntimeFault(c.number), c.statement);
    }
    EXPECT_EQ(service.errors.last_report(),
              replace_all(c.line, "@", RuntimeFault(9).description()));
  }
}

TEST(ErrorReport, IsSuppressedWithoutFaultAndForModelessForms) {
  ErrorService service;
  service.errors.ErrorLogNew("fMain.X", {}, RuntimeFault(0), 0);
  service.errors.ErrorLogWithMsgBox("fMain.X", {}, RuntimeFault(401), 3);
  service.errors.ErrorLogNew("fMain.Y", {}, RuntimeFault(6), 0);
  EXPECT_THAT(service.reports, ElementsAre(Pair("fMain.Y", 6)));
  EXPECT_TRUE(service.boxes.empty());
}

TEST(ErrorReport, BoxNamesTheErrorLogInTheUsersLanguage) {
  ErrorService service;
  service.errors.look_up_text = [](std::string_view key) { return concat("<", key, ">"); };
  service.errors.ErrorLogWithMsgBox("fMain.Add", {"a line"}, RuntimeFault(9), 0);
  EXPECT_THAT(service.boxes, ElementsAre(FakeDialogs::Box{
                                 "<Message_ErrorRaised>\r\n<Message_SeeFile>: \\log\\error.log",
                                 MessageStyle::kExclamation, ""}));
}

TEST(ErrorReport, ThatFailsItselfShowsABoxAndStops) {
  ErrorService service;
  service.errors.on_report = [](auto, const auto&, auto) { raise_fault(5); };
  std::vector<std::string> shown;
  service.errors.show_message = [&](auto text, auto /*style*/, auto /*title*/) {
    shown.emplace_back(text);
    // As the message box does when it fails.
    service.errors.ErrorLogNew("modPrivateDummy.MsgBoxForward", {}, RuntimeFault(7), 0);
  };
  for (int i = 0; i < 2; ++i) service.errors.ErrorLogNew("fMain.Add", {}, RuntimeFault(9), 0);
  EXPECT_THAT(shown, ElementsAre("Error in ExceptionHandler\r\n", "Error in ExceptionHandler\r\n"));
}

TEST(TraceLog, WritesBatchesOf51AndTheRestAtTheEnd) {
  FakeFiles files;
  files.add_folder("D:\\log");
  FakeClock clock;
  ErrorEnvironment environment{.main_folder = "D:", .trace_mode = true};
  {
    clsErrorHandling errors(environment, files, clock);
    for (int i = 0; i < 50; ++i) errors.LogDebug_Trace("fMain.A", {i});
    EXPECT_EQ(files.content(kTraceLog), "");
    errors.LogDebug_Trace("fMain.ShowSite", {2});
    EXPECT_EQ(count_of(files.content(kTraceLog), '\n'), 51U);
    EXPECT_EQ(files.writes(kTraceLog), 1) << "one opening per batch";
    EXPECT_THAT(files.content(kTraceLog),
                testing::StartsWith("2014/03/02  17:05:09  IMP v1.17  fMain.A 01(N:0)\r\n"));
    EXPECT_THAT(files.content(kTraceLog), EndsWith("fMain.ShowSite 01(N:2)\r\n"));
    errors.LogDebug_Trace("fMain.ShowSite", {});
  }
  EXPECT_THAT(files.content(kTraceLog), EndsWith("IMP v1.17  fMain.ShowSite 02\r\n"));
}

TEST(TraceLog, NumbersRepeatsAndHidesEntries) {
  ErrorService service;
  service.environment.trace_mode = true;
  const auto trace = [&](std::string_view name) { service.errors.LogDebug_Trace(name, {}); };
  for (int i = 0; i < 10; ++i) trace("a.B");
  trace("a.b");
  trace("a.B");
  service.errors.TraceHideNextSteps(2);
  trace("hidden");
  trace("hidden");
  for (int i = 0; i < 39; ++i) trace("c");
  const std::string log = service.files.content(kTraceLog);
  EXPECT_THAT(log, HasSubstr("a.B 10\r\n"));
  EXPECT_THAT(log, HasSubstr("a.b 01\r\n"));
  EXPECT_THAT(log, HasSubstr("a.B 01\r\n2014/03/02  17:05:09  IMP v1.17  c 01\r\n"));
  EXPECT_EQ(log.find("hidden"), log.npos);
}

TEST(TraceLog, KeepsItsLinesWhileTheFileCannotBeOpened) {
  ErrorService service;
  service.environment.trace_mode = true;
  service.files.refuse_writing(kTraceLog, 75);
  for (int i = 0; i < 60; ++i) service.errors.LogDebug_Trace("a.B", {});
  service.files.refuse_writing(kTraceLog, 0);
  service.errors.LogDebug_Trace("a.B", {});
  EXPECT_EQ(count_of(service.files.content(kTraceLog), '\n'), 61U);
  EXPECT_TRUE(service.reports.empty());
}

TEST(TraceLog, StaysAwayWithoutTraceModeOrMainFolder) {
  ErrorService service;
  for (int i = 0; i < 60; ++i) service.errors.LogDebug_Trace("a.B", {});
  service.environment.trace_mode = true;
  service.environment.main_folder.clear();
  for (int i = 0; i < 60; ++i) service.errors.LogDebug_Trace("a.B", {});
  EXPECT_FALSE(service.files.exists(kTraceLog));
  EXPECT_FALSE(service.files.exists("\\log\\trace.log"));
}

TEST(TraceLog, NoticeComesOnceAndStartsANewLog) {
  ErrorService service;
  service.environment.trace_mode = true;
  service.files.put(kTraceLog, "old\r\n");
  service.errors.TraceInfoMessage(true);
  for (int i = 0; i < 51; ++i) service.errors.LogDebug_Trace("a.B", {});
  EXPECT_EQ(count_of(service.files.content(kTraceLog), '\n'), 51U);
  ASSERT_EQ(service.boxes.size(), 1U);
  EXPECT_EQ(service.boxes[0],
            (FakeDialogs::Box{"Message_TracingIsActive\r\nMessage_SeeFile: \\Quendaspec.ini "
                              "([Debug] - TraceMode=1)\r\n\r\nMessage_MuchDataInShortTime\r\n"
                              "Message_SeeFile: D:\\log\\trace.log",
                              MessageStyle::kInformation, "Quenda - Tracing"}));
}

TEST(DebugLog, HasASwitchPerChannel) {
  ErrorService service;
  service.environment.LogCAPI = true;
  service.errors.LogDebug_AVM("x.A", {});
  service.errors.LogDebug_CAPI("x.B", {5});
  service.errors.LogDebug_Temp("x.C", {});
  EXPECT_EQ(service.files.content("D:\\log\\debug.log"),
            "2014/03/02  17:05:09  x.B(N:5)\r\n2014/03/02  17:05:09  x.C\r\n");
}

TEST(Procedure, ReportsWithStatementAndKeepsWhatWasReached) {
  ErrorService service;
  service.environment.trace_mode = true;
  int reached = 0;
  EXPECT_FALSE(procedure(service.errors, "fMain.CSVclean", {}, [&](Statement& at) {
    at(1);
    reached = 1;
    at(12);
    raise_fault(13);
  }));
  EXPECT_FALSE(procedure(service.errors, "fMain.B", {}, [] { throw std::bad_alloc(); }));
  EXPECT_EQ(reached, 1);
  EXPECT_THAT(service.reports, ElementsAre(Pair("fMain.CSVclean", 13), Pair("fMain.B", 7)));
  for (int i = 0; i < 47; ++i) service.errors.LogDebug_Trace("z", {});
  EXPECT_THAT(service.files.content(kTraceLog),
              HasSubstr(concat("fMain.CSVclean 01\r\n2014/03/02  17:05:09  IMP v1.17  !ERROR! "
                               "01(S:12 - 13, S:",
                               u8"Typen unverträglich"_de, ")\r\n")));
}

TEST(Procedure, LetsTheEndOfTheProgramAndUntrappedFaultsPass) {
  ErrorService service;
  const auto run = [&](auto body) { procedure(service.errors, "fMain.A", {}, body).or_go_on(); };
  EXPECT_THROW(run([] { throw EndProgram(); }), EndProgram);
  service.environment.trapping = false;
  EXPECT_THROW(run([] { raise_fault(6); }), RuntimeFault);
  EXPECT_TRUE(service.reports.empty());
}

}  // namespace
}  // namespace quenda

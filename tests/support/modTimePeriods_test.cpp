#include "support/modTimePeriods.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/shared/error_service.h"
#include "text/date_text.h"

namespace quenda {
namespace {

struct Fixture : ErrorService {
  FakeSystem system;
  modTimePeriods periods{errors, clock, system};
};

TEST(GetFormatedDateByString, HasThreeFormsAndHandsTheSeparatorBack) {
  Fixture f;
  std::string slash = "/";
  EXPECT_EQ(f.periods.GetFormatedDateByString("", slash, true, true), "2014/03/02");
  std::string separator;
  EXPECT_EQ(f.periods.GetFormatedDateByString("24.12.1970", separator, false, true), "24.12.");
  EXPECT_EQ(separator, ".");
  EXPECT_EQ(f.periods.GetFormatedDateByString("1.2.2003", separator, false, false), "01.02.2003");
  EXPECT_EQ(f.periods.GetFormatedDateByString("24.12.800", separator, false, false), "24.12.0800");
  EXPECT_EQ(f.periods.GetFormatedTimeNow(), "17:05:09");
}

TEST(GetLimiter, IsFoundOnce) {
  Fixture f;
  f.system.today = "no date";
  EXPECT_EQ(f.periods.GetLimiter(), "");
  f.system.today = "3-2-2014";
  EXPECT_EQ(f.periods.GetLimiter(), "-");
  f.system.today = "3/2/2014";
  EXPECT_EQ(f.periods.GetLimiter(), "-");
}

TEST(CDateNew, ReadsLooseTexts) {
  struct Case {
    std::string_view date;
    std::string_view time;
    LocalTime moment;
  };
  const LocalTime none;
  const Case cases[] = {
      {"02.03.2014", "", {2014, 3, 2, 0, 0, 0}},
      {"2.3.14", " 7:05 ", {2014, 3, 2, 7, 5, 0}},
      {"2014.03.02", "", {2014, 3, 2, 0, 0, 0}},
      {"2014/3/2", "17.05.09", {2014, 3, 2, 17, 5, 9}},
      {"Geb. 12.03.1970", "", {1970, 3, 12, 0, 0, 0}},
      {"2. M\xE4rz 2014", "", {2014, 3, 2, 0, 0, 0}},
      {"2-mrz-14", "7:05", {2014, 3, 2, 7, 5, 0}},
      {"Dezember 24, 1970", "", {1970, 12, 24, 0, 0, 0}},
      {"24. Dez", "", {2014, 12, 24, 0, 0, 0}},
      {"Mai 1970", "", {1970, 5, 1, 0, 0, 0}},
      {"24.12.", "", {2014, 12, 24, 0, 0, 0}},
      {"24/12", "17:05", {2014, 12, 24, 17, 5, 0}},
      {"12/24", "", {2014, 12, 24, 0, 0, 0}},
      {"3.1970", "", {1970, 3, 1, 0, 0, 0}},
      {"1970-03", "", {1970, 3, 1, 0, 0, 0}},
      {"30. Feb 2014", "", none},
      {"1 2 Mai 2014", "", none},
      {"Mai", "", none},
      {"2 Mai Juni", "", none},
      {"14", "", none},
      {"29.02.2012", "", {2012, 2, 29, 0, 0, 0}},
      {"29.02.2013", "", none},
      {"31.04.2014", "", none},
      {"1.2.3.4", "", none},
      {"x12.03.1970x", "", none},
      {"02.03.2014", "23:59:59", {2014, 3, 2, 23, 59, 59}},
      {"02.03.2014", "24:00", none},
      {"", "17:05", {1899, 12, 30, 17, 5, 0}},
      {"", "", none},
      {"nothing", "", none},
  };
  for (const Case& c : cases) {
    Fixture f;
    EXPECT_EQ(f.periods.CDateNew(c.date, c.time), c.moment) << c.date << " " << c.time;
    EXPECT_TRUE(f.reports.empty());
  }
}

TEST(CDateNew, PutsShortYearsIntoTwoCenturies) {
  EXPECT_EQ(date_value("1.1.29", 2014)->year, 2029);
  EXPECT_EQ(date_value("1.1.30", 2014)->year, 1930);
}

TEST(DateClean, LosesOnlyWhatStandsBeforeTheDate) {
  Fixture f;
  EXPECT_EQ(f.periods.DateClean("Geb. 12.03.1970"), "12.03.1970");
  EXPECT_EQ(f.periods.DateClean(" am 12.03.1970 (Mo) "), "12.03.1970 (Mo)");
  EXPECT_EQ(f.periods.DateClean("x12.03.1970x"), "12.03.1970x");
  EXPECT_EQ(f.periods.DateClean("12.03.1970"), "");
  EXPECT_EQ(f.periods.DateClean("12.03.1970 (Mo)"), "");
  EXPECT_EQ(f.periods.DateClean("none"), "");
}

}  // namespace
}  // namespace quenda

#include "app/account/report_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "tests/shared/fake_files.h"
#include "text/fault.h"

namespace quenda {
namespace {

/// A source of so many numbers, of which it is known how often it was walked over.
class Source {
 public:
  explicit Source(std::size_t numbers) : numbers_(numbers) {}
  std::size_t walks = 0;
  /// Called before each number.
  std::function<void(std::size_t number)> on_number = [](auto) {};

  ReportFile::TellRows tell_rows() {
    return [this](const ReportFile::OnRow& on_row) {
      ++walks;
      ReportRow row;
      row.name = "Falk";
      for (row.record = 1; row.record <= numbers_; ++row.record) {
        on_number(row.record);
        row.fate = row.record == 2 ? Fate::kTooShort : Fate::kAdded;
        on_row(row);
      }
      return numbers_;
    };
  }

 private:
  std::size_t numbers_;
};

std::size_t lines_of(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

class ReportFileTest : public ::testing::Test {
 protected:
  ReportFileTest() { files.put("D:\\other.txt", ""); }
  FakeFiles files;
};

TEST_F(ReportFileTest, RowsAreToldTwiceOnlyWhereTheHeadHasToKnowThemFirst) {
  for (const auto& [path, walks] : {std::pair("D:\\r.csv", 1U), std::pair("D:\\r.json", 2U)}) {
    Source source(30000);
    ReportFile report(path);
    report.count(files, source.tell_rows());
    EXPECT_EQ(report.head.records, 30000U);
    EXPECT_EQ(report.fates()[static_cast<std::size_t>(Fate::kAdded)], 29999U);
    report.write(files, source.tell_rows());
    EXPECT_EQ(source.walks, walks);
    EXPECT_EQ(lines_of(files.content(path)), 30001U);
    EXPECT_GT(files.writes(path), 2) << "in parts";
  }
  EXPECT_NE(files.content("D:\\r.json").find("\"records\":30000,\"numbers\":30000"),
            std::string::npos);
}

TEST_F(ReportFileTest, TheTerminalGetsAllOfItAtOnce) {
  Source source(30000);
  ReportFile report("-");
  report.count(files, source.tell_rows());
  EXPECT_EQ(lines_of(report.text(files, source.tell_rows())), 30001U);
  EXPECT_EQ(source.walks, 1U);
}

TEST_F(ReportFileTest, AFaultWhileRowsAreWrittenLetsThemBeCountedAndComesUpAfterwards) {
  Source source(60000);
  source.on_number = [&](std::size_t number) {
    if (number == 30000) files.refuse_writing("D:\\r.csv", kFaultDiskFull);
    if (number == 45000) files.refuse_writing("D:\\r.csv", 0);
  };
  ReportFile report("D:\\r.csv");
  report.count(files, source.tell_rows());
  EXPECT_EQ(report.fates()[static_cast<std::size_t>(Fate::kAdded)], 59999U);
  const std::string written = files.content("D:\\r.csv");
  EXPECT_THROW(report.write(files, source.tell_rows()), RuntimeFault);
  EXPECT_EQ(files.content("D:\\r.csv"), written) << "nothing follows what is missing";
  EXPECT_GT(lines_of(written), 10000U);
  EXPECT_LT(lines_of(written), 30000U);
}

}  // namespace
}  // namespace quenda

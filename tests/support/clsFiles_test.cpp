#include "support/clsFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/shared/error_service.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kLog = "D:\\log\\language.log";

struct Fixture : ErrorService {
  clsFiles helper{errors, files, clock};
};

TEST(LineCount, FollowsTheRuleOfEachLineEnd) {
  EXPECT_EQ(line_count(""), 0);
  EXPECT_EQ(line_count("a\r\nb"), 2);
  EXPECT_EQ(line_count("a\r\nb\r\n"), 2);
  EXPECT_EQ(line_count("a"), 1);
  EXPECT_EQ(line_count("a\nb\nc\nd\n"), 3) << "LF line ends count half, and one more";
  EXPECT_EQ(line_count("a\nb\nc\n"), 2);
  EXPECT_EQ(line_count("\n"), 1);
  std::string long_text;
  for (int line = 0; line < 5000; ++line) long_text += concat(std::to_string(line), "\r\n\r x\n");
  EXPECT_EQ(line_count(long_text), 5001);
  EXPECT_EQ(line_count("a\nb\r\nc\nd"), 2) << "one CR LF makes it the line end";
  EXPECT_EQ(line_count("\r\n\r\n"), 2);
}

TEST(OpenFileToStream, IsEmptyWithoutFileAndAfterAFault) {
  Fixture f;
  long count = 7;
  EXPECT_EQ(f.helper.fOpenFileToStream("D:\\none.csv", count), "");
  EXPECT_EQ(count, 0);
  EXPECT_TRUE(f.reports.empty());
  f.files.put("D:\\locked.csv", "a\r\n");
  f.files.refuse_reading("D:\\locked.csv", 70);
  count = 7;
  EXPECT_EQ(f.helper.fOpenFileToStream("D:\\locked.csv", count), "");
  EXPECT_EQ(count, 0);
  EXPECT_THAT(f.reports, testing::ElementsAre(testing::Pair("clsFiles.fOpenFileToStream", 70)));
}

TEST(MakeFile, WritesOrAddsALineAndReportsFailureOnce) {
  Fixture f;
  EXPECT_TRUE(f.helper.MakeFile("D:\\a.txt", "one", true));
  EXPECT_TRUE(f.helper.MakeFile("D:\\a.txt", "two", true));
  EXPECT_EQ(f.files.content("D:\\a.txt"), "one\r\ntwo\r\n");
  EXPECT_TRUE(f.helper.MakeFile("D:\\a.txt", "three", false));
  EXPECT_EQ(f.files.content("D:\\a.txt"), "three\r\n");
  f.files.refuse_writing("D:\\a.txt", 75);
  EXPECT_FALSE(f.helper.MakeFile("D:\\a.txt", "four", true));
  EXPECT_THAT(f.reports, testing::ElementsAre(testing::Pair("clsFiles_MakeFile", 75)));
}

std::string lines(std::size_t kilobytes) {
  std::string text;
  for (std::size_t i = 0; text.size() < kilobytes * 1024; ++i) {
    text += std::string(62, static_cast<char>('a' + i % 26U)) + "\r\n";
  }
  return text;
}

TEST(FileWriteLog, DatesItsEntryAndNeverTrimsWithoutMaximum) {
  Fixture f;
  f.files.put(kLog, lines(30));
  f.helper.FileWrite_Log(kLog, "entry", 0);
  EXPECT_EQ(f.files.content(kLog), lines(30) + "2014/03/02  17:05:09  entry\r\n");
}

TEST(FileWriteLog, LeavesALogThatCannotBeRead) {
  Fixture f;
  f.files.put(kLog, lines(20));
  f.files.refuse_reading(kLog, kFaultInputOutput);
  f.helper.FileWrite_Log(kLog, "entry", 5);
  EXPECT_EQ(f.files.content(kLog), lines(20) + "2014/03/02  17:05:09  entry\r\n");
}

TEST(FileWriteLog, DropsTheOldestLinesDownToThreeQuarters) {
  Fixture f;
  const std::string entry = "2014/03/02  17:05:09  entry\r\n";
  f.files.put(kLog, lines(20));
  f.helper.FileWrite_Log(kLog, "entry", 20);
  EXPECT_EQ(f.files.content(kLog), lines(20) + entry) << "20 kilobytes are not above 20";
  f.files.put(kLog, lines(25));
  f.helper.FileWrite_Log(kLog, "entry", 20);
  const std::string log = f.files.content(kLog);
  EXPECT_EQ(log.size(), 16 * 1024 - 64 + entry.size());
  EXPECT_TRUE((lines(25) + entry).ends_with(log));
}

TEST(FileWriteLog, DropsALogWithoutLineEndsAsAWhole) {
  Fixture f;
  f.files.put(kLog, std::string(3000, 'x'));
  f.helper.FileWrite_Log(kLog, "entry", 1);
  EXPECT_EQ(f.files.content(kLog), "2014/03/02  17:05:09  entry\r\n");
}

}  // namespace
}  // namespace quenda

#include "sources/delimited_text.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/shared/fault_of.h"
#include "tests/sources/slow_records.h"

namespace quenda {
namespace {

const OnStep kNoStep = [](std::size_t, std::size_t) {};

std::vector<std::string> records_of(std::string text, char delimiter = ';') {
  remove_doubled_quotes(text);
  const RecordTable table = build_records(text, delimiter, kNoStep);
  std::vector<std::string> records;
  for (std::size_t i = 0; i < table.size(); ++i) records.emplace_back(table[i]);
  return records;
}

TEST(BuildRecords, GivesTheRecords) {
  struct Case {
    const char* name;
    std::string text;
    std::vector<std::string> records;
  };
  const Case cases[] = {
      {"closed last line leaves a lone delimiter", "a;b;c\r\n1;2;3\r\n", {"a;b;c", "1;2;3", ";"}},
      {"open last line gets a surplus delimiter", "a;b\r\n1;2", {"a;b", "1;2;"}},
      {"no line end at all", "a;b;c", {"a;b;c;"}},
      {"empty text", "", {""}},
      {"only doubled quotes", "\"\"", {""}},
      {"quoted delimiter and line break", "x;\"b;c\r\nd\";y\r\n", {"x;\"b|c  d\";y", ";"}},
      {"first field cut by its delimiter", "\"Meier; Hans\";1\r\n", {"\"Meier| Hans\";1", ";"}},
      {"quoted last field keeps its line end",
       "1;\"a;b\"\r\n2;\"c\"\r\n",
       {"1;\"a|b\"", "2;\"c\"", ";"}},
      {"escaped quotes vanish", "1;\"He said \"\"hi\"\"\";2\r\n", {"1;\"He said hi\";2", ";"}},
      {"empty quoted field", "1;\"\";2\r\n", {"1;;2", ";"}},
      {"quote never closed swallows the rest", "1;\"a;b\r\nc;d\r\n", {"1;\"a|b  c|d  |"}},
      {"LF line ends make one record", "a;b\n1;2\n", {"a;b1;2;"}},
      {"CR line ends make one record", "a;b\r1;2", {"a;b\r1;2;"}},
      {"lone LF beside CR LF", "a\n;b\r\n1;2\r\n", {"a;b", "1;2", ";"}},
      {"CR before CR LF stays, LF after it goes", "a;b\r\r\n\n1;2\r\n", {"a;b\r", "1;2", ";"}},
      {"line break right before a closing quote", "1;\"a\n\";2\r\n", {"1;\"a\";2", ";"}},
      {"delimiter right before a closing quote opens anew",
       "1;\"a;\";2;3\r\n4;5\r\n",
       {"1;\"a|\"|2|3  4|5  |"}},
      {"NUL bytes", std::string("a\0b;c\r\n", 7), {std::string("a\0b;c", 5), ";"}}};
  for (const Case& c : cases) EXPECT_EQ(records_of(c.text), c.records) << c.name;
}

TEST(BuildRecords, TellsItsStepsUpToTheEnd) {
  std::size_t last = 0;
  std::size_t steps = 0;
  const std::string text(200'000, 'x');
  build_records(text + ";", ';', [&](std::size_t done, std::size_t total) {
    EXPECT_GT(done, last);
    EXPECT_LE(done, total);
    last = done;
    ++steps;
  });
  EXPECT_GE(steps, 3U);
}

TEST(BuildRecords, AgreesWithTheSlowRuleOnRandomTexts) {
  constexpr std::string_view kLetters = "ab;;,\"\"\r\n\r\n|\n x";
  unsigned seed = 20140302;
  for (unsigned round = 0; round < 20'000; ++round) {
    std::string text;
    for (unsigned length = round % 23; length > 0; --length) {
      seed = seed * 1664525U + 1013904223U;
      text += kLetters[(seed >> 16U) % kLetters.size()];
    }
    remove_doubled_quotes(text);
    ASSERT_EQ(records_of(text), slow_records(slow_clean(text, ';'), ';'))
        << testing::PrintToString(text);
  }
}

TEST(BuildRecords, AgreesWithTheSlowRuleAmongRegularRecords) {
  // Most records are looked at 64 bytes at a time, and one that is not regular may stand anywhere.
  constexpr std::string_view kUsual[] = {"Falk;1;\"Weg 1\"\r\n", "\"Ida\";\"22\";\"\"\r\n",
                                         ";;\r\n", "Otto;333;Ulm und um Ulm herum\r\n", "\r\n"};
  constexpr std::string_view kOthers[] = {"a\"b\";c\r\n",    ";\"d;e\"\r\n", "\"f;g\";h\r\n",
                                          ";\"i\nj\";k\r\n", "\n",           "l\rm\r\n",
                                          ";\"n\"o;p\r\n",   "q;\"",         "r\"\r\n",
                                          "\"s\rt\"\r\n",    "\"\n",         ";\"u\r\n\";v\r\n"};
  unsigned seed = 1999;
  const auto below = [&](std::size_t limit) {
    seed = seed * 1664525U + 1013904223U;
    return (seed >> 16U) % limit;
  };
  for (unsigned round = 0; round < 3000; ++round) {
    std::string text;
    for (std::size_t pieces = below(40); pieces > 0; --pieces) {
      const bool usual = below(8) > 0;
      text += usual ? kUsual[below(std::size(kUsual))] : kOthers[below(std::size(kOthers))];
    }
    remove_doubled_quotes(text);
    ASSERT_EQ(records_of(text), slow_records(slow_clean(text, ';'), ';'))
        << testing::PrintToString(text);
  }
}

TEST(RemoveDoubledQuotes, SeesPairsWhereBlocksOfALargeTextMeet) {
  constexpr std::size_t kMegabyte = 1024UL * 1024;
  for (std::size_t at = kMegabyte - 3; at <= kMegabyte + 1; ++at) {
    std::string text(2 * kMegabyte + 1, 'x');
    text.replace(at, 3, "\"\"\"");
    text[5] = text[6] = '"';
    int pauses = 0;
    remove_doubled_quotes(text, [&] { ++pauses; });
    EXPECT_EQ(text.size(), 2 * kMegabyte - 3) << at;
    EXPECT_EQ(text.find('"'), at - 2) << at;
    EXPECT_GE(pauses, 2);
  }
}

TEST(Delimiter, IsTheOneThatOccursMoreOftenThanEachOther) {
  EXPECT_EQ(choose_delimiter(count_delimiters("a;b;c,d")), 0);
  EXPECT_EQ(choose_delimiter(count_delimiters("a,b,c;d")), 1);
  EXPECT_EQ(choose_delimiter(count_delimiters("a\tb\tc;d")), 2);
  EXPECT_EQ(choose_delimiter(count_delimiters("a;b\tc")), -1) << "a tie is not broken";
  EXPECT_EQ(choose_delimiter(count_delimiters("")), -1);
}

TEST(Delimiter, HasToOccurAsOftenAsTheFileHasLineBreaks) {
  EXPECT_TRUE(delimiter_acceptable(count_delimiters("a;b\r\nc\r\nd;e"), 0));
  EXPECT_FALSE(delimiter_acceptable(count_delimiters("a;b\r\nc\r\nd\r\n"), 0));
  EXPECT_TRUE(delimiter_acceptable(count_delimiters("a;b\nc\nd\n"), 0)) << "LF is no line break";
}

TEST(SplitLines, SplitsAtCrLfOnly) {
  const auto lines = split_lines(std::make_shared<std::string>("a\nb\r\n\r\nc\r\n"));
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0], "a\nb");
  EXPECT_EQ(lines[1], "");
  EXPECT_EQ(lines[2], "c");
  EXPECT_EQ(lines[3], "");
  EXPECT_TRUE(split_lines(std::make_shared<std::string>("a\nb\rc")).empty());
}

TEST(PadRecords, FillsShortRecordsAndLeavesLongOnes) {
  RecordTable table = build_records("h1;h2;h3\r\n1\r\n1;2;3;4\r\n", ';', kNoStep);
  pad_records(table, ';', kNoStep);
  EXPECT_EQ(table.padded_text(1, ';'), "1;;");
  EXPECT_EQ(table.padded_text(2, ';'), "1;2;3;4");
  RecordFields fields;
  fields.split(table, 1, ';', 2);
  EXPECT_EQ(fields[0].text, "1");
  EXPECT_EQ(fields[2].text, "");
  EXPECT_THROW(static_cast<void>(fields[3]), RuntimeFault);
}

TEST(PadRecords, OverflowsBeyond32767DelimitersAndKeepsWhatWasPadded) {
  const std::string wide(32768, ';');
  RecordTable table = build_records("h;i\r\n1\r\n" + wide + "\r\n2\r\n", ';', kNoStep);
  EXPECT_EQ(fault_of([&] { pad_records(table, ';', kNoStep); }), kFaultOverflow);
  EXPECT_EQ(table.padded_text(1, ';'), "1;");
  EXPECT_EQ(table.padded_text(3, ';'), "2") << "records after the fault are not padded";
}

TEST(ShownFields, LoseQuotesAndRegainDelimiters) {
  EXPECT_EQ(shown_fields("\"a|b\",c,", ','), (std::vector<std::string>{"a,b", "c", ""}));
  EXPECT_EQ(shown_fields(std::string(100'000, ','), ',').size(), kMostFields + 1);
}

TEST(IspyLog, IsKnownByTheEndOfItsPath) {
  EXPECT_TRUE(is_ispy_log("C:\\Logs\\ISPY.LOG"));
  EXPECT_FALSE(is_ispy_log("C:\\Logs\\ispy.log.bak"));
  EXPECT_FALSE(is_ispy_log("C:\\ispy.log.old\\ispy.log")) << "the first occurrence decides";
}

}  // namespace
}  // namespace quenda

#include "app/quenda-import/batch_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/literal_1252.h"

namespace quenda {
namespace {

using Arguments = std::vector<std::string>;

BatchOptions options_of(Arguments more) {
  Arguments arguments = {"--file", "a.csv"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  BatchCommand command = read_batch_command(arguments);
  EXPECT_TRUE(command.options) << command.text;
  return command.options.value_or(BatchOptions());
}

TEST(BatchOptions, WhatIsNotGivenIsLeftToTheSettings) {
  const BatchOptions options = options_of({});
  EXPECT_EQ(options.suite, "");
  EXPECT_EQ(options.file, "a.csv");
  EXPECT_FALSE(options.columns_given());
  EXPECT_FALSE(options.delimiter || options.flip_name || options.address_order ||
               options.existing || options.min_name || options.country || options.area);
  EXPECT_THAT(options.bindings, testing::Each(std::nullopt));
  EXPECT_THAT(options.suffixes, testing::Each(std::nullopt));
}

TEST(BatchOptions, EverythingGiven) {
  const BatchOptions options = options_of(
      {"--suite",    "/srv/Büro", "--delimiter",     "tab",         "--name",     "Vorname",
       "--name",     "[Name]",    "--number",        "Tel.",        "--address1", "",
       "--address2", "Straße",    "--flip-name",     "yes",         "--min-name", "no",
       "--existing", "keep",      "--address-order", "5",           "--bind",     "1=2",
       "--bind",     "3=none",    "--suffix",        "2= (Büro)=x", "--suffix",   "1=",
       "--country",  "0049",      "--area",          "030",         "--dry-run",  "--quiet"});
  EXPECT_EQ(options.suite, u8"/srv/Büro"_de);
  EXPECT_EQ(options.delimiter, 2);
  EXPECT_EQ(options.columns[kNames], (Arguments{"Vorname", "[Name]"}));
  EXPECT_EQ(options.columns[kNumbers], Arguments{"Tel."});
  EXPECT_EQ(options.columns[kAddress1], Arguments{""});
  EXPECT_EQ(options.columns[kAddress2], Arguments{std::string(u8"Straße"_de)});
  EXPECT_EQ(options.flip_name, true);
  EXPECT_EQ(options.min_name, false);
  EXPECT_EQ(options.existing, 2);
  EXPECT_EQ(options.address_order, 5);
  EXPECT_THAT(options.bindings, testing::ElementsAre(2, std::nullopt, 0));
  EXPECT_THAT(options.suffixes, testing::ElementsAre("", u8" (Büro)=x"_de, std::nullopt));
  EXPECT_EQ(options.country, "0049");
  EXPECT_EQ(options.area, "030");
  EXPECT_TRUE(options.dry_run && options.quiet);
}

TEST(BatchOptions, TakingBackNeedsTheSuiteOnly) {
  const BatchCommand command = read_batch_command({"--suite", "/srv", "--undo", "--quiet"});
  ASSERT_TRUE(command.options) << command.text;
  EXPECT_TRUE(command.options->undo);
  for (const char* other : {"--file=a.csv", "--backup", "--dry-run", "--report=-", "--outlook"}) {
    EXPECT_EQ(read_batch_command({"--undo", other}).status, kExitWrongUsage) << other;
  }
}

TEST(BatchOptions, TheVersionNeedsNothingElse) {
  const BatchCommand command = read_batch_command({"--version"});
  EXPECT_EQ(command.status, kExitDone);
  EXPECT_THAT(command.text, testing::AllOf(testing::StartsWith("quenda-import "),
                                           testing::HasSubstr(" ("), testing::EndsWith(")\n")));
}

TEST(BatchOptions, WrongUsageIsToldApartFromTextsThatNoFileCanHave) {
  struct Case {
    Arguments arguments;
    int status;
  };
  const Case cases[] = {
      {{}, kExitWrongUsage},
      {{"--suite", "."}, kExitWrongUsage},
      {{"--file", "a", "--outlook"}, kExitWrongUsage},
      {{"--file", "a", "--unknown"}, kExitWrongUsage},
      {{"--file", "a", "stray"}, kExitWrongUsage},
      {{"--file"}, kExitWrongUsage},
      {{"--file", "a", "--delimiter", "pipe"}, kExitWrongUsage},
      {{"--file", "a", "--existing", "1"}, kExitWrongUsage},
      {{"--file", "a", "--min-name", "ja"}, kExitWrongUsage},
      {{"--file", "a", "--address-order", "6"}, kExitWrongUsage},
      {{"--file", "a", "--address-order", "-1"}, kExitWrongUsage},
      {{"--file", "a", "--bind", "4=1"}, kExitWrongUsage},
      {{"--file", "a", "--bind", "1=3"}, kExitWrongUsage},
      {{"--file", "a", "--suffix", "text"}, kExitWrongUsage},
      {{"--file", "a", "--suffix", "1=Łódź"}, kExitWrongUsage},
      {{"--file", "a", "--name", "1", "--name", "2", "--name", "3"}, kExitWrongUsage},
      {{"--file", "a", "--address2", "1", "--address2", "2", "--address2", "3", "--address2", "4"},
       kExitWrongUsage},
      {{"--file", "a", "--columns", "all"}, kExitWrongUsage},
      {{"--file", "a", "--columns", "auto", "--number", "b"}, kExitWrongUsage},
      {{"--file", "a", "--address2", "b", "--columns", "auto"}, kExitWrongUsage},
      {{"--file", "a", "--convert", "ja"}, kExitWrongUsage},
      {{"--file", "a", "--name", "Imię"}, kExitRefused},
      {{"--file", "Łódź.csv"}, kExitRefused},
      {{"--file", "\xFF.csv"}, kExitRefused},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.arguments));
    const BatchCommand command = read_batch_command(c.arguments);
    EXPECT_FALSE(command.options);
    EXPECT_EQ(command.status, c.status);
    EXPECT_NE(command.text, "");
  }
}

TEST(BatchOptions, HelpShowsExamplesAndIsNoFailure) {
  const BatchCommand command = read_batch_command({"--help"});
  EXPECT_EQ(command.status, kExitDone);
  EXPECT_THAT(command.text, testing::HasSubstr("Beispiele"));
}

}  // namespace
}  // namespace quenda

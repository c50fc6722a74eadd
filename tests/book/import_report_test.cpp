#include "book/import_report.h"

#include <gtest/gtest.h>

#include "text/literal_1252.h"

namespace quenda {
namespace {

ReportRow caller() {
  return {.line = 7,
          .record = 5,
          .row = 2,
          .name = u8"Jörg \"Joe\" Müller"_de,
          .number = "03012345678",
          .raw = "+49 (30)\t123;45678",
          .address = "Am Ring 1",
          .fate = Fate::kKept,
          .with = {},
          .existing = u8"Müller; J"_de};
}

TEST(ImportReport, CsvQuotesWhatWouldBreakTheLine) {
  std::string csv;
  append_report_head(csv, ReportFormat::kCsv, {});
  append_report_row(csv, ReportFormat::kCsv, caller());
  EXPECT_EQ(csv,
            "\xEF\xBB\xBFZeile;Datensatz;Rufnummer Nr.;Name;Rufnummer;Rufnummer im Export;Adresse;"
            "Ergebnis;Grund\r\n"
            "7;5;2;\"J\xC3\xB6rg \"\"Joe\"\" M\xC3\xBCller\";03012345678;\"+49 (30)\t123;45678\";"
            "Am Ring 1;behalten;\"der Eintrag des Telefonbuchs bleibt (im Telefonbuch: "
            "\"\"M\xC3\xBCller; J\"\")\"\r\n");
}

TEST(ImportReport, JsonEscapesAndTellsWhatIsNotThere) {
  std::string json;
  append_report_row(json, ReportFormat::kJsonLines, caller());
  EXPECT_EQ(json,
            "{\"line\":7,\"record\":5,\"row\":2,\"name\":\"J\xC3\xB6rg \\\"Joe\\\" M\xC3\xBCller\","
            "\"number\":\"03012345678\",\"raw\":\"+49 (30)\\u0009123;45678\",\"address\":\"Am Ring "
            "1\",\"fate\":\"kept\",\"with\":null,\"existing\":\"M\xC3\xBCller; J\"}\n");
}

TEST(ImportReport, HeadOfJsonCountsTheNumbersByTheirFates) {
  ReportHead head;
  head.version = "1.17";
  head.file = "a\\b.csv";
  head.source = "file";
  head.records = 3;
  head.result = "nodata";
  head.fates[static_cast<std::size_t>(Fate::kSame)] = 2;
  head.fates[static_cast<std::size_t>(Fate::kTooShort)] = 1;
  head.unchosen = {{"Pager", 4}};
  std::string json;
  append_report_head(json, ReportFormat::kJsonLines, head);
  EXPECT_EQ(json,
            "{\"program\":\"quenda-import\",\"version\":\"1.17\",\"file\":\"a\\\\b.csv\","
            "\"source\":\"file\",\"dry_run\":false,\"records\":3,\"numbers\":3,\"result\":"
            "\"nodata\",\"fates\":{\"same\":2,\"too_short\":1},\"options\":{},\"unchosen\":{"
            "\"Pager\":4}}\n");
}

TEST(ImportReport, EndingOfThePathTellsTheFormat) {
  EXPECT_EQ(report_format("c:\\x.JSON"), ReportFormat::kJsonLines);
  EXPECT_EQ(report_format("c:\\json.csv"), ReportFormat::kCsv);
}

TEST(Fate, SummaryNamesOnlyWhatOccurs) {
  FateCounts counts{};
  counts[static_cast<std::size_t>(Fate::kAdded)] = 1150;
  counts[static_cast<std::size_t>(Fate::kNotNumeric)] = 31;
  EXPECT_EQ(fate_summary(counts), "1.181 Nummern gelesen: 1.150 neu, 31 unlesbar.");
  EXPECT_EQ(count_lost(counts), 31U);
}

}  // namespace
}  // namespace quenda

#include "book/import_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "book/report_cells.h"
#include "text/literal_1252.h"
#include "text/text.h"

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
  ReportText csv;
  append_report_head(csv, ReportFormat::kCsv, {});
  append_report_row(csv, ReportFormat::kCsv, caller());
  EXPECT_EQ(csv.text(),
            "\xEF\xBB\xBFZeile;Datensatz;Rufnummer Nr.;Name;Rufnummer;Rufnummer im Export;Adresse;"
            "Ergebnis;Grund\r\n"
            "7;5;2;\"J\xC3\xB6rg \"\"Joe\"\" M\xC3\xBCller\";03012345678;\"+49 (30)\t123;45678\";"
            "Am Ring 1;behalten;\"der Eintrag des Telefonbuchs bleibt (im Telefonbuch: "
            "\"\"M\xC3\xBCller; J\"\")\"\r\n");
}

/// The last cell of a row.
std::string reason_in_csv(Fate fate, std::optional<std::uint64_t> with = {},
                          std::optional<std::string_view> existing = {}) {
  ReportRow row;
  row.fate = fate;
  row.with = with;
  row.existing = existing;
  ReportText csv;
  append_report_row(csv, ReportFormat::kCsv, row);
  const std::string_view word = words_of(row.fate).word;
  const auto at = csv.text().find(concat(";", to_utf8(word), ";"));
  return std::string(csv.text().substr(at + to_utf8(word).size() + 2));
}

TEST(ImportReport, TheReasonNamesTheEntryThatTheNumberGaveWayTo) {
  for (std::size_t i = 0; i < kFates; ++i) {
    const auto fate = static_cast<Fate>(i);
    const std::string reason = to_utf8(words_of(fate).reason);
    EXPECT_EQ(reason_in_csv(fate), concat(reason, "\r\n"));
    EXPECT_EQ(reason_in_csv(fate, 12), concat(reason, " (Zeile 12)\r\n"));
    EXPECT_EQ(
        reason_in_csv(fate, 12, "A\"\x80"),
        concat("\"", reason, " (Zeile 12) (im Telefonbuch: \"\"A\"\"\xE2\x82\xAC\"\")\"\r\n"));
  }
}

/// A text of JSON or a cell as a plain loop over its characters makes it.
std::string in_json(std::string_view text) {
  std::string json;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    std::array<char, 8> escaped{};
    std::snprintf(escaped.data(), escaped.size(), "\\u%04x", unsigned{code});
    if (c == '"' || c == '\\') json += '\\';
    json += code < 0x20 || code == 0x7F ? escaped.data() : to_utf8({&c, 1});
  }
  return concat("\"", json, "\"");
}
std::string in_csv(std::string_view text) {
  const std::string cell = replace_all(to_utf8(text), "\"", "\"\"");
  return text.find_first_of(";\"\r\n") == text.npos ? cell : concat("\"", cell, "\"");
}

TEST(ReportCells, ANumberCountsOnOrJumps) {
  CountedNumber counted;
  std::vector<std::uint64_t> numbers = {0, 1, 1, 5, 6, 3, 0, 10, 9, 100, 99, ~std::uint64_t{0}};
  for (std::uint64_t number = 0; number < 1200; ++number) numbers.push_back(number);
  for (const std::uint64_t number : numbers) {
    std::array<char, kMostDigits> room{};
    const char* const end = counted.put(room.data(), number);
    ASSERT_EQ(std::string(static_cast<const char*>(room.data()), end), std::to_string(number));
  }
}

TEST(ReportCells, EveryCharacterIsWrittenAtEveryPlace) {
  const auto check = [](std::string_view text) {
    std::string room(std::max(room_for_csv(text), room_for_json(text)), '"');
    const auto written = [&](const char* end) {
      return std::string_view(room).substr(0, static_cast<std::size_t>(end - room.data()));
    };
    ASSERT_EQ(written(put_csv_cell(room.data(), text)), in_csv(text));
    ASSERT_EQ(written(put_json_text(room.data(), text)), in_json(text));
  };
  check("");
  for (unsigned code = 0; code < 256; ++code) {
    for (std::size_t place = 0; place < 40; ++place) {
      std::string text(40, 'x');
      text[place] = static_cast<char>(code);
      check(std::string_view(text).substr(0, place + 1));
      check(text);
      check(std::string_view(text).substr(0, place));  // it stands behind the text
    }
  }
  for (const char c : {'x', '"', '\x80'}) check(std::string(kLongText + 1, c));
}

TEST(ImportReport, JsonEscapesAndTellsWhatIsNotThere) {
  ReportText json;
  append_report_row(json, ReportFormat::kJsonLines, caller());
  EXPECT_EQ(json.text(),
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
  ReportText json;
  append_report_head(json, ReportFormat::kJsonLines, head);
  EXPECT_EQ(json.text(),
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

#include "sources/column_suggestion.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "sources/delimited_text.h"
#include "sources/file_conversion.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

/// A file as the wizard sees it once its records are built.
struct Read {
  std::vector<std::string> header;
  RecordTable records;
  char delimiter;
};

Read read(std::string text, bool convert) {
  char delimiter = 0;
  if (convert) {
    const FileFacts facts = look_at_file(text);
    ConvertedTable table = convert_file(text, facts, conversion_delimiter(text, facts));
    text = std::move(table.text);
    delimiter = table.delimiter;
  } else {
    delimiter = kDelimiters.at(static_cast<std::size_t>(choose_delimiter(count_delimiters(text))));
  }
  remove_doubled_quotes(text);
  RecordTable records = build_records(std::move(text), delimiter, [](std::size_t, std::size_t) {});
  std::vector<std::string> header = shown_fields(records[0], delimiter);
  return {std::move(header), std::move(records), delimiter};
}

Read read_sample(const std::string& name, bool convert) {
  std::ifstream in(std::string(QUENDA_SOURCE_DIR "/tests/data/exports/") + name, std::ios::binary);
  return read({std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()}, convert);
}

std::string told(const Read& file) {
  const auto suggestion = suggest_columns(file.header, file.records, file.delimiter);
  if (!suggestion) return "unknown";
  const auto names = [&](const std::vector<std::size_t>& columns) {
    std::string list;
    for (const std::size_t column : columns) list += file.header[column] + "|";
    return list;
  };
  std::string text = concat(suggestion->name, ": ", names(suggestion->names));
  if (suggestion->flip_name) text += "flipped";
  for (std::size_t row = 0; row < suggestion->numbers.size(); ++row) {
    text += concat(" ", file.header[suggestion->numbers[row]], suggestion->suffixes.at(row),
                   std::to_string(suggestion->bindings.at(row)));
  }
  for (const auto& address : suggestion->addresses) {
    if (!address.empty()) text += concat(" / ", names(address));
  }
  return text + std::to_string(suggestion->address_order);
}

TEST(SuggestColumns, ForEachKnownExport) {
  struct Case {
    const char* file;
    bool convert;
    std::string_view suggestion;
  };
  const Case cases[] = {
      {"outlook_de.csv", false,
       u8"Outlook: Vorname|Nachname|flipped Telefon geschäftlich(geschäftl.)2 Telefon "
       u8"(privat)(privat)1 Mobiltelefon(mobil)1 / Straße privat|Ort privat|Postleitzahl privat| / "
       u8"Straße geschäftlich|Ort geschäftlich|Postleitzahl geschäftlich|1"_de},
      {"outlook_de_spreadsheet.csv", true,
       u8"Outlook: Vorname|Nachname|flipped Telefon (privat)(privat)1 Mobiltelefon(mobil)1 / "
       u8"Straße "
       u8"privat|Ort privat|Postleitzahl privat|1"_de},
      {"outlook_en.csv", false,
       u8"Outlook (englisch): First Name|Last Name|flipped Business Phone(geschäftl.)1 Home "
       u8"Phone(privat)1 / Business Street|Business City|Business Postal Code|1"_de},
      {"outlook_com.csv", true,
       u8"Outlook.com: First Name|Last Name|flipped Home Phone(privat)1 Business "
       u8"Phone(geschäftl.)1 Mobile Phone(mobil)1 / Home Street|Home City|Home Postal Code|1"_de},
      {"google_until_2024.csv", true,
       u8"Kontakttabelle: Nachname|Vorname| Telefon geschäftlich(geschäftl.)2 Mobiltelefon(mobil)1 "
       u8"Fax geschäftlich2 / Straße privat|PLZ privat|Ort privat| / Straße geschäftlich|0"_de},
      {"google_since_2024.csv", true,
       u8"Kontakttabelle: Nachname|Vorname| Telefon privat(privat)1 Telefon "
       u8"geschäftlich(geschäftl.)1 Mobiltelefon(mobil)1 / Straße privat|PLZ privat|Ort "
       u8"privat|0"_de},
      {"google_since_2024.csv", false,
       "Google-Kontakte: First Name|Last Name|flipped Phone 1 - Value1 Phone 2 - Value1 Phone 3 - "
       "Value1 / Address 1 - Street|Address 1 - City|Address 1 - Postal Code|1"},
      {"thunderbird_en.csv", true,
       u8"Thunderbird: First Name|Last Name|flipped Work Phone(geschäftl.)1 Home Phone(privat)1 "
       u8"Mobile Number(mobil)1 / Home Address|Home City|Home ZipCode|1"_de},
      {"thunderbird_de.csv", true,
       u8"Thunderbird: Vorname|Nachname|flipped Tel. dienstlich(geschäftl.)2 Tel. "
       u8"privat(privat)1 Mobil-Tel.-Nr.(mobil)1 / Privat: Adresse|Privat: Ort|Privat: PLZ| / "
       u8"Dienstlich: Adresse|Dienstlich: Ort|Dienstlich: PLZ|1"_de},
      {"yahoo.csv", false,
       "Yahoo: First|Last|flipped Home(privat)1 Mobile(mobil)1 / Home Address|Home City|Home "
       "ZIP|1"},
      {"macos_de.tab", true,
       u8"macOS-Adressbuch: Vorname|Nachname|flipped Arbeit Telefon(geschäftl.)1 "
       u8"Mobiltelefon(mobil)1 / Arbeitsadresse Strasse|Arbeitsadresse Stadt|Arbeitsadresse PLZ|1"_de},
      {"webmail.csv", true,
       "Web-Mail: First Name|Last Name|flipped Home Phone(privat)1 Home Mobile(mobil)1 / Home "
       "Street|Home City|Home Zip|1"},
      {"router_new.csv", true, "Anrufliste des Routers: Name| Rufnummer0"},
      {"telephone_list.tab", false,
       "Telefonliste: NAME|VORNAME| TELEFON1 TELEFAX1 MOBILFON(mobil)1 / STRASSE|PLZ|ORT|0"},
      {"cards_30.vcf", true,
       u8"Kontakttabelle: Nachname|Vorname| Telefon privat(privat)1 Telefon "
       u8"geschäftlich(geschäftl.)1 Mobiltelefon(mobil)1 / Straße geschäftlich|PLZ "
       u8"geschäftlich|Ort geschäftlich|0"_de}};
  for (const Case& c : cases) {
    std::string suggestion = told(read_sample(c.file, c.convert));
    if (suggestion.starts_with("Anrufliste")) suggestion.pop_back();
    EXPECT_EQ(to_utf8(suggestion), to_utf8(c.suggestion)) << c.file;
  }
}

TEST(SuggestColumns, OnlyForKnownHeaders) {
  EXPECT_EQ(told(read("Name;Telefon;Ort\r\nA;1;B\r\n", false)), "unknown");
  EXPECT_EQ(told(read("Anzeigename;Telefon privat;Rabatt\r\nA;1;B\r\n", false)), "unknown");
  EXPECT_EQ(told(read("Anzeigename;Telefon privat\r\nA;1\r\n", false)),
            "Kontakttabelle: Anzeigename| Telefon privat(privat)00");
  // Column names in UTF-8, read as they are.
  EXPECT_EQ(known_export_name({"\xEF\xBB\xBF"
                               "Anzeigename",
                               "Telefon gesch\xC3\xA4"
                               "ftlich"}),
            "Kontakttabelle");
}

TEST(UnchosenNumbers, AreCountedByColumn) {
  const Read file = read_sample("outlook_de.csv", false);
  const auto chosen = suggest_columns(file.header, file.records, file.delimiter);
  ASSERT_TRUE(chosen);
  const auto unchosen =
      unchosen_numbers(count_numbers(file.header, file.records, file.delimiter), chosen->numbers);
  ASSERT_EQ(unchosen.size(), 1U);
  EXPECT_EQ(unchosen[0].heading, "Weiteres Telefon");
  EXPECT_EQ(unchosen[0].count, 1U);
}

}  // namespace
}  // namespace quenda

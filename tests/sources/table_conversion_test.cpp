#include "sources/table_conversion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "sources/file_conversion.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

ConvertedTable converted(std::string_view bytes, char delimiter = ';') {
  return convert_table(bytes, look_at_file(bytes), delimiter);
}

/// A text in UTF-16.
std::string utf16(std::string_view ascii, bool big_endian) {
  std::string text = big_endian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : ascii) text.append(big_endian ? std::string{'\0', c} : std::string{c, '\0'});
  return text;
}

TEST(ConvertTable, WritesWhatTheReaderReads) {
  struct Case {
    const char* name;
    std::string bytes;
    std::string text;
  };
  const Case cases[] = {
      {"empty", "", ""},
      {"LF", "a;b\n1;2\n", "a;b\r\n1;2\r\n"},
      {"CR", "a;b\r1;2\r", "a;b\r\n1;2\r\n"},
      {"mixed, the last line open", "a;b\r\n1;2\n3;4\r5;6", "a;b\r\n1;2\r\n3;4\r\n5;6\r\n"},
      {"empty lines stay", "a;b\n\n1;2\n", "a;b\r\n\r\n1;2\r\n"},
      {"sep line", "sep=;\na;b\n", "a;b\r\n"},
      {"mark",
       "\xEF\xBB\xBF"
       "a;b\r\n",
       "a;b\r\n"},
      {"UTF-16", utf16("a;b\r\n1;2\r\n", false), "a;b\r\n1;2\r\n"},
      {"UTF-16 the other way round", utf16("a;b\r\n1;2\r\n", true), "a;b\r\n1;2\r\n"},
      {"NUL and other control characters", std::string("a;\0b\x01\n", 6), "a;b\r\n"},
      {"a delimiter in quotes", "a;b\n1;\"2;3\"\n", "a;b\r\n1;2|3\r\n"},
      {"a delimiter in a quoted first field", "a;b\n\"1;2;3\";4\n", "a;b\r\n1|2|3;4\r\n"},
      {"a delimiter before a closing quote", "a;b\n\"1;\";\"2\"\n", "a;b\r\n1|;2\r\n"},
      {"quotes within a field", "a;b\nsay \"hi\";\"say \"\"ho\"\"\"\n", "a;b\r\nsay hi;say ho\r\n"},
      {"a blank before a quote", "a; \"b;c\"\n", "a; b|c\r\n"},
      {"a line break in quotes is kept", "a;b\n\"1\n2\";\"3\r\n4\"\n",
       "a;b\r\n1\x0F"
       "2;3\x0E\x0F"
       "4\r\n"},
      {"but not in a column name", "\"a\nb\";c\n", "a b;c\r\n"},
      {"a quote that is never closed", "a;b\n1;\"2\n3;4\n", "a;b\r\n1;2\r\n3;4\r\n"},
      {"trailing empty column", "a;b;\n1;2;\n3\n", "a;b\r\n1;2\r\n3\r\n"},
      {"trailing column with something in it", "a;b;\n1;2;\n3;4;5\n", "a;b;\r\n1;2;\r\n3;4;5\r\n"},
      {"surplus delimiters", "a;b\n1;2;;\n3;4;\n", "a;b\r\n1;2\r\n3;4\r\n"}};
  for (const Case& c : cases) EXPECT_EQ(converted(c.bytes).text, c.text) << c.name;
  EXPECT_EQ(converted("a\tb\n1\t\"2\t3\"\n", '\t').text, "a\tb\r\n1\t2|3\r\n");
  EXPECT_EQ(converted("a;b\n1;2\t3\n").text, "a;b\r\n1;2\t3\r\n");
}

TEST(ConvertTable, BringsCharactersIntoTheCodePage) {
  struct Case {
    const char* utf8;
    std::string_view text;
    std::size_t changed;
    std::size_t lost;
  };
  const Case cases[] = {{"Jörg Weiß € – „x“", u8"Jörg Weiß € – „x“"_de, 0, 0},
                        {"Dvořák Łukasz", u8"Dvorák Lukasz"_de, 2, 0},
                        {"Mu\u0308ller E\u0301va", u8"Müller Éva"_de, 0, 0},
                        {"Dvor\u030Ca\u0301k", u8"Dvorák"_de, 1, 0},
                        {"\u0130\u015F\u0131l \u1E9E \uFB01", u8"Isil ß fi"_de, 5, 0},
                        {"Nguy\u1EC5n V\u0103n \u0110\u1EE9c", "Nguyen Van Duc", 4, 0},
                        {"Юлия Щукина", "Yuliya Shchukina", 10, 0},
                        {"Γεώργιος Παπαδόπουλος", "Georgios Papadopoulos", 20, 0},
                        {"A\u200B\u200Fnna \U0001F600", "Anna ", 0, 1},
                        {"\u6F22\u5B57", "??", 0, 2},
                        {"\uFF10\uFF13\u2011\u2009\u0661", "03- 1", 5, 0},
                        {"a\uFF1Bb \uFF02", "a|b '", 2, 0}};
  for (const Case& c : cases) {
    const ConvertedTable table = converted(std::string(c.utf8) + "\n");
    EXPECT_EQ(table.text, concat(c.text, "\r\n")) << c.utf8;
    EXPECT_EQ(table.losses.changed, c.changed) << c.utf8;
    EXPECT_EQ(table.losses.lost, c.lost) << c.utf8;
  }
  const ConvertedTable table = converted("a\nb\n\u0159\n\u0159\u0159\u6F22\n");
  EXPECT_EQ(table.losses.changed_in, (std::vector<std::size_t>{2, 3}));
  EXPECT_EQ(table.losses.lost_in, (std::vector<std::size_t>{3}));
}

TEST(ConvertTable, DecidesAMixtureLineByLine) {
  EXPECT_EQ(converted("M\xC3\xBCller\nM\xFCller;MEN\xDC\x94\nK\xC3\xB6ln\n").text,
            u8"Müller\r\nMüller;MENÜ”\r\nKöln\r\n"_de);
  // A line put together from two files, and one with a broken character.
  EXPECT_EQ(converted("J\xC3\xB6rg;M\xFCller\n").text, u8"Jörg;Müller\r\n"_de);
  EXPECT_EQ(converted("J\xC3\xB6rg;Caf\xC3").text, u8"Jörg;Caf?\r\n"_de);
}

TEST(ConvertTable, KnowsTheLineEachRecordBeginsIn) {
  const ConvertedTable table = converted("sep=;\na;\"b\nc\"\n\n1;\"2\r\n3\r4\"\r5;6\n");
  const std::size_t lines[] = {2, 4, 5, 8, 9};
  for (std::size_t i = 0; i < std::size(lines); ++i) EXPECT_EQ(table.lines.line_of(i), lines[i]);
  EXPECT_EQ(converted("a\nb\n").lines.steps(), 0U);
  // Lines passed within a quote that was none count once.
  const ConvertedTable open = converted("a;b\n1;\"2\n3;4\n");
  EXPECT_EQ(open.lines.line_of(2), 3U);
}

TEST(ConversionDelimiter, IsThatOfTheHeader) {
  const std::pair<std::string, char> cases[] = {{"a;b;c\n1,2;3,4;5,6,7\n", ';'},
                                                {"sep=,\na;b\n1;2\n", ','},
                                                {"a\tb\n;;;;\n", '\t'},
                                                {"\"a;b;c\",d\n", ','},
                                                {"Name, Vorname;Tel\n1;2\n3;4\n", ';'},
                                                {"abc\n", '\0'},
                                                {"BEGIN:VCARD\nN:a,b,c,d\n", ';'}};
  for (const auto& [text, delimiter] : cases) {
    EXPECT_EQ(conversion_delimiter(text, look_at_file(text)), delimiter) << text;
  }
}

}  // namespace
}  // namespace quenda

#include "sources/file_facts.h"

#include <gtest/gtest.h>

#include <string>

#include "text/text.h"

namespace quenda {
namespace {

using enum FileEncoding;

/// A text behind so many bytes of ASCII: a character must not be lost where the blocks meet.
std::string padded(std::size_t bytes, const std::string& text) {
  return std::string(bytes, 'x') + text;
}

TEST(LookAtFile, TellsTheEncoding) {
  struct Case {
    const char* name;
    std::string text;
    FileEncoding encoding;
  };
  const Case cases[] = {{"empty", "", kAscii},
                        {"ASCII", "Name;Tel\r\nMeier;030\r\n", kAscii},
                        {"Windows-1252",
                         "M\xFCller;Stra\xDF"
                         "e\r\n",
                         kWindows1252},
                        {"Windows-1252 that ends with a letter", "Caf\xE9", kWindows1252},
                        {"Windows-1252 that is UTF-8 by chance", "MEN\xDC\x94;x\r\n", kWindows1252},
                        {"UTF-8", "M\xC3\xBCller\r\n", kUtf8},
                        {"UTF-8 cut off within a character", "M\xC3\xBCller;Caf\xC3", kUtf8},
                        {"emoji alone", "Anna \xF0\x9F\x98\x80", kUtf8},
                        {"mark alone",
                         "\xEF\xBB\xBF"
                         "a;b\r\n",
                         kUtf8},
                        {"both", "M\xC3\xBCller\r\nM\xFCller\r\n", kMixed},
                        {"surplus byte in UTF-8", "M\xC3\xBC\xBCller\r\n", kMixed},
                        {"UTF-16 with mark", std::string("\xFF\xFEN\0a\0", 6), kUtf16Little},
                        {"UTF-16 without", std::string("\0N\0a\0m\0e", 8), kUtf16Big}};
  for (const Case& c : cases) EXPECT_EQ(look_at_file(c.text).encoding, c.encoding) << c.name;
  for (const std::size_t bytes : {2044U, 2045U, 2046U, 2047U, 2048U, 4095U, 8191U}) {
    const std::string text = "\xE2\x80\x93;\xC3\xA4\r\n";
    EXPECT_EQ(look_at_file(padded(bytes, text)).encoding, kUtf8) << bytes;
    EXPECT_EQ(look_at_file(padded(bytes, text + padded(3000,
                                                       "\xE4"
                                                       "a")))
                  .encoding,
              kMixed)
        << bytes;
  }
}

TEST(LookAtFile, TellsTheLineEnds) {
  struct Case {
    std::string text;
    LineEnds ends;
  };
  const Case cases[] = {{"a;b", LineEnds::kNone},       {"a\r\nb\r\n", LineEnds::kCrAndLf},
                        {"a\nb\n", LineEnds::kLf},      {"a\rb\r", LineEnds::kCr},
                        {"a\r\nb\n", LineEnds::kMixed}, {"a\r\nb\r", LineEnds::kMixed},
                        {"a\nb\r", LineEnds::kMixed},   {"\r\n\n", LineEnds::kMixed}};
  for (const Case& c : cases) {
    EXPECT_EQ(look_at_file(c.text).line_ends, c.ends) << c.text;
    // Also where a pair is torn apart by the end of a block.
    for (const std::size_t bytes : {2046U, 2047U, 2048U, 4095U}) {
      EXPECT_EQ(look_at_file(padded(bytes, c.text)).line_ends, c.ends) << c.text << bytes;
    }
  }
  EXPECT_EQ(look_at_file(std::string("\xFF\xFE"
                                     "a\0\r\0\n\0",
                                     8))
                .line_ends,
            LineEnds::kCrAndLf);
}

TEST(LookAtFile, TellsTheKind) {
  using enum FileKind;
  struct Case {
    std::string text;
    FileKind kind;
  };
  const Case cases[] = {
      {"Name;Telefon\r\n", kTable},
      {"\xEF\xBB\xBF\r\nbegin:vcard\nVERSION:3.0\n", kVcard},
      {std::string("\xFF\xFE"
                   "B\0E\0G\0I\0N\0:\0V\0C\0A\0R\0D\0",
                   24),
       kVcard},
      {"PK\x03\x04....xl/workbook.xml", kWorkbook},
      {"PK\x03\x04" + std::string(300'000, 'x') + "xl/sharedStrings.xml", kWorkbook},
      {"PK\x03\x04....mimetypeapplication/vnd.oasis.opendocument.spreadsheet", kOpenDocument},
      {"PK\x03\x04....contacts.csv", kZip},
      {"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1....", kOldWorkbook},
      {"%PDF-1.7", kPdf},
      {"dn: cn=Erika,mail=e@example.org\n", kLdif},
      {"version: 1\n\ndn: cn=Erika\n", kLdif},
      {"[Privat]\r\nErika#030 1234567#\r\n", kSections},
      {"Privat:\r\nErika#030 1234567#\r\n", kSections},
      {"Hinweis:;Telefon\r\n", kTable},
      {"<?xml version=\"1.0\"?>\n<phonebooks/>", kXml},
      {"<phonebooks>\n", kXml},
      {"<!DOCTYPE html>\n<html>", kHtml},
      {"<?xml version=\"1.0\"?>\n<html>", kHtml}};
  for (const Case& c : cases) EXPECT_EQ(look_at_file(c.text).kind, c.kind) << c.text.substr(0, 40);
}

TEST(LookAtFile, FindsTheSepLineNulBytesAndASample) {
  const FileFacts semicolon = look_at_file("sep=;\r\nM\xC3\xBCller;J\xC3\xB6rg\r\n");
  EXPECT_TRUE(semicolon.sep_line);
  EXPECT_EQ(semicolon.sep_delimiter, ';');
  EXPECT_EQ(semicolon.sample, "M\xC3\xBCller");
  EXPECT_EQ(look_at_file("SEP=|\r\na|b\r\n").sep_delimiter, '\0');
  EXPECT_FALSE(look_at_file("sep=Name;b\r\n").sep_line);
  EXPECT_TRUE(look_at_file(std::string("a;\0b\r\n", 6)).nul_bytes);
  EXPECT_FALSE(look_at_file("a;b\r\n").nul_bytes);
}

}  // namespace
}  // namespace quenda

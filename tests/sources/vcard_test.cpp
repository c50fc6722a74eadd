#include "sources/vcard.h"

#include <gtest/gtest.h>

#include <string>

#include "text/line_breaks.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

std::string card(std::string_view lines) {
  return concat("BEGIN:VCARD\r\n", lines, "END:VCARD\r\n");
}

ConvertedTable read(std::string_view text) { return read_vcards(text, look_at_file(text)); }

TEST(ReadVcards, MakesTheContactTable) {
  struct Case {
    const char* name;
    std::string_view lines;
    std::string_view table;
  };
  const Case cases[] = {
      {"3.0", "N:Meier;Hans;;;\r\nFN:Hans Meier\r\nTEL;TYPE=CELL,VOICE:0171 1\r\n",
       "Anzeigename;Nachname;Vorname;Mobiltelefon\r\nHans Meier;Meier;Hans;0171 1\r\n"},
      {"2.1, quoted-printable in two lines",
       "N;CHARSET=UTF-8;QUOTED-PRINTABLE:M=C3=BC=\r\nller;J=C3=B6rg\r\nTEL;HOME:1\r\n",
       u8"Nachname;Vorname;Telefon privat\r\nMüller;Jörg;1\r\n"_de},
      {"code page of one byte", "FN;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE:J=F6rg\r\n",
       u8"Anzeigename;\r\nJörg;\r\n"_de},
      {"bytes that are no UTF-8", "FN:J\xF6rg\r\n", u8"Anzeigename;\r\nJörg;\r\n"_de},
      {"4.0", "FN:A\r\nTEL;VALUE=uri;TYPE=\"cell,voice\":tel:+49-171-1;ext=2\r\n",
       "Anzeigename;Mobiltelefon\r\nA;+49-171-1\r\n"},
      {"labels of a telephone",
       "item1.X-ABLabel:_$!<Work>!$_\r\nitem1.TEL:1\r\nitem2.TEL:2\r\nitem2.X-ABLabel:Handy\r\n",
       u8"Telefon geschäftlich;Mobiltelefon\r\n1;2\r\n"_de},
      {"kinds", "TEL;WORK;FAX:1\r\nTEL;FAX:2\r\nTEL:3\r\nTEL;HOME:4\r\nTEL;HOME:5\r\n",
       u8"Telefon privat;Telefon privat 2;Fax privat;Fax geschäftlich;Weitere Rufnummer\r\n4;5;2;1;3\r\n"_de},
      {"escapes and folding", "ORG:M\\; S\\, T;Abt.\r\nFN:a\\\r\n ,b\r\n\tc\\nd\r\n",
       "Anzeigename;Firma\r\na,bc d;M| S, T\r\n"},
      {"addresses", "ADR;TYPE=work:;;Weg 1;Ort;;123;D\r\nADR;TYPE=home:Postfach 9;;;X;;;\r\n",
       u8"Straße privat;Ort privat;Straße geschäftlich;PLZ geschäftlich;Ort geschäftlich;Land "
       u8"geschäftlich\r\nPostfach 9;X;Weg 1;123;Ort;D\r\n"_de},
      {"pictures", "PHOTO;ENCODING=b:AAA\r\n BBB\r\nFN:A\r\n", "Anzeigename;\r\nA;\r\n"},
      {"a card of somebody else within", "AGENT:\r\nBEGIN:VCARD\r\nFN:B\r\nEND:VCARD\r\nFN:A\r\n",
       "Anzeigename;\r\nA;\r\n"},
      {"nothing but an address of e-mail", "EMAIL:a@example.org\r\n",
       "Anzeigename;\r\na@example.org;\r\n"}};
  for (const Case& c : cases) EXPECT_EQ(read(card(c.lines)).text, c.table) << c.name;
}

TEST(ReadVcards, CutsOffNothingAtTheEndAndPassesOverEmptyCards) {
  const ConvertedTable table =
      read(concat(card(""), "\n", card("FN:A\nTEL;CELL:1\n"), "BEGIN:VCARD\rFN:B\rTEL;CELL:2"));
  EXPECT_EQ(table.text, "Anzeigename;Mobiltelefon\r\nA;1\r\nB;2\r\n");
  EXPECT_EQ(table.lines.line_of(1), 4U);
  EXPECT_EQ(table.lines.line_of(2), 8U);
}

// One card with very many numbers must not widen the table, and no line may grow without bound.
TEST(ReadVcards, StaysSmall) {
  std::string text = "BEGIN:VCARD\nFN:A\n";
  for (int i = 0; i < 20'000; ++i) text += "TEL;HOME:1\nTEL;WORK:2\n";
  text += "END:VCARD\n";
  for (int i = 0; i < 1000; ++i) text += "BEGIN:VCARD\nTEL:1\nEND:VCARD\n";
  text += "BEGIN:VCARD\nNOTE:" + std::string(1'000'000, 'x') + "\n";
  for (int i = 0; i < 10'000; ++i) text += " y\n";
  const ConvertedTable table = read(text);
  EXPECT_LT(table.text.size(), 200'000U);
  EXPECT_EQ(count_line_breaks(table.text).pairs, 1003U);
}

}  // namespace
}  // namespace quenda

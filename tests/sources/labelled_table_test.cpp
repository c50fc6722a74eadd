#include "sources/labelled_table.h"

#include <gtest/gtest.h>

#include "sources/file_conversion.h"
#include "text/literal_1252.h"

namespace quenda {
namespace {

TEST(SortByLabels, GivesTheContactTable) {
  constexpr std::string_view kText =
      "First Name,Last Name,E-mail 1 - Value,Phone 1 - Label,Phone 1 - Value,Phone 2 - Label,"
      "Phone 2 - Value,Address 1 - Label,Address 1 - Formatted,Address 1 - Street\n"
      "Hans,Meier,,Mobile,0171 1,* Work,\"030 2\n030 3\",Arbeit,\"Weg 1\nKiel\",\n"
      "\n"
      ",,a@example.org,,,,,,,\n"
      "Eva,Klein,,Home,040 4 ::: 040 5,Work Fax,6,Privat,x,Gasse 2\n";
  const ConvertedTable table = convert_file(kText, look_at_file(kText), ',');
  EXPECT_EQ(table.text,
            u8"Anzeigename;Nachname;Vorname;Telefon privat;Telefon geschäftlich;Mobiltelefon;Fax "
            u8"geschäftlich;Straße privat;Straße geschäftlich\r\n"
            u8";Meier;Hans;;030 2 ::: 030 3;0171 1;;;Weg 1 Kiel\r\n"
            u8"a@example.org;\r\n"
            u8";Klein;Eva;040 4 ::: 040 5;;;6;Gasse 2\r\n"_de);
  EXPECT_EQ(table.delimiter, ';');
  // The first has two line breaks in it, line 5 is empty.
  EXPECT_EQ(table.lines.line_of(1), 2U);
  EXPECT_EQ(table.lines.line_of(2), 6U);
  EXPECT_EQ(table.lines.line_of(3), 7U);
}

TEST(SortByLabels, OnlyTablesWithLabels) {
  EXPECT_TRUE(is_labelled_table("Phone 1 - Type;Phone 1 - Value", ';'));
  EXPECT_FALSE(is_labelled_table("Phone 1 - Value;Name", ';'));
  EXPECT_FALSE(is_labelled_table("Phone 1 - Type,Phone 1 - Value", ';'));
}

}  // namespace
}  // namespace quenda

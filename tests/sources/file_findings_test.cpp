#include "sources/file_findings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/ini/language_keys.h"
#include "sources/delimited_text.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

std::string told(const std::vector<Finding>& findings) {
  std::string text;
  for (const Finding& finding : findings) {
    text += concat(finding_text(german_text(finding.key), finding.values), "\n");
  }
  return text;
}

TEST(FileFindings, SayWhatWouldHappen) {
  struct Case {
    std::string bytes;
    std::string_view plain;
    std::string_view adapted;
  };
  const Case cases[] = {
      {"Name;Tel\r\nM\xFCller;030\r\n", "", ""},
      {"Name;Tel\r\nJ\xC3\xB6rg;030\r\n",
       u8"Die Datei ist in UTF-8 geschrieben: Umlaute kämen falsch an (\"JÃ¶rg\" statt \"Jörg\").\n"_de,
       "Die Datei wird beim Einlesen angepasst (UTF-8).\n"},
      {"sep=;\nName;Tel\n",
       u8"Die Zeilen enden nur mit LF: Die ganze Datei käme als ein einziger Datensatz an.\n"
       u8"Die erste Zeile nennt das Trennzeichen (\"sep=\"): Sie käme als Kopfzeile an.\n"_de,
       "Die Datei wird beim Einlesen angepasst (LF, sep=).\n"},
      {"BEGIN:VCARD\n",
       u8"Die Datei enthält Kontakte als vCard: Sie müssen beim Einlesen angepasst werden.\n"_de,
       "Die Datei wird beim Einlesen angepasst (vCard).\n"},
      {"%PDF-1.4",
       u8"Die Datei ist ein PDF-Dokument: Exportieren Sie die Kontakte als CSV-Datei, und wählen "
       u8"Sie diese.\n"_de,
       u8"Die Datei ist ein PDF-Dokument: Exportieren Sie die Kontakte als CSV-Datei, und wählen "
       u8"Sie diese.\n"_de}};
  for (const Case& c : cases) {
    const FileFacts facts = look_at_file(c.bytes);
    EXPECT_EQ(told(file_findings(facts, false)), c.plain);
    EXPECT_EQ(told(file_findings(facts, true)), c.adapted);
    EXPECT_EQ(is_adaptable(facts), c.adapted.find("angepasst") != c.adapted.npos);
  }
}

TEST(TableFindings, NameWhatIsWrongWithTheColumns) {
  const auto facts_of = [](std::string text) {
    const auto no_step = [](std::size_t, std::size_t) {};
    return look_at_table(build_records(std::move(text), ';', no_step), ';');
  };
  const SourceLines lines;
  EXPECT_EQ(told(table_findings(facts_of("Name;Tel;Ort\r\nA;1;B\r\n;;;;;\r\n\r\nC;2;D"), lines)),
            "");
  EXPECT_EQ(told(table_findings(facts_of("Meier;030 1234567\r\nA;1\r\n"), lines)),
            u8"Die erste Zeile enthält eine Rufnummer (\"030 1234567\"): Fehlt der Datei die "
            u8"Kopfzeile?\n"_de);
  EXPECT_EQ(told(table_findings(facts_of("A;A;;\r\n1;2;3;4\r\n1;2\r\n1;2;3;4;5\r\n"), lines)),
            "Der Spaltenname \"A\" kommt mehrfach vor.\nSpalten ohne Namen: 2.\n"
            u8"Datensätze mit mehr oder weniger Feldern als die Kopfzeile: 2, der erste in Zeile "
            u8"3.\n"_de);
}

TEST(OtherFindings, TellWhatIsLeftOut) {
  SourceLines lines;
  lines.begin_record(0, 2);
  LostCharacters losses;
  losses.count_changed(1);
  losses.count_changed(1);
  losses.count_lost(4);
  losses.count_lost(4);
  EXPECT_EQ(
      told(loss_findings(losses, lines)),
      u8"2 Zeichen wurden durch ähnliche ersetzt (Zeile 3).\n2 Zeichen gingen verloren (Zeile "
      u8"6).\n"_de);
  EXPECT_EQ(told(unchosen_findings({{0, "Weiteres Telefon", 9}, {1, "Pager", 3}})),
            "12 Nummern in 2 weiteren Spalten: Weiteres Telefon, Pager\n");
  LostCharacters single;
  single.count_changed(1);
  single.count_lost(1);
  EXPECT_EQ(told(loss_findings(single, lines)),
            u8"1 Zeichen wurde durch ein ähnliches ersetzt (Zeile 3).\n"
            u8"1 Zeichen ging verloren (Zeile 3).\n"_de);
  EXPECT_EQ(told(unchosen_findings({{0, "Pager", 2}})), "2 Nummern in 1 weiteren Spalte: Pager\n");
  EXPECT_EQ(told(unchosen_findings({{0, "Pager", 1}})), "1 Nummer in 1 weiteren Spalte: Pager\n");
  EXPECT_TRUE(unchosen_findings({}).empty());
}

}  // namespace
}  // namespace quenda

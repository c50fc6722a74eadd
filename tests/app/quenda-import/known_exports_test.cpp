#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "app/quenda-import/batch_run.h"
#include "tests/shared/fakes.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::HasSubstr;

constexpr std::string_view kFile = "C:\\export";
constexpr std::string_view kSettings = "D:\\Suite\\data\\sett_import.ini";

/// What a run would take from a file, as the console tool shows it.
class KnownExportsTest : public testing::Test {
 protected:
  KnownExportsTest() {
    machine_.files.put("D:\\Suite\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
    machine_.files.put("D:\\Suite\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
    machine_.system.protects = false;
    options_.suite = "D:\\Suite";
    options_.file = kFile;
    options_.convert = true;
    options_.auto_columns = true;
    options_.dry_run = true;
  }

  std::string list_of(const std::string& content) {
    machine_.files.put(kFile, content);
    std::ostringstream out;
    errors_.str("");
    status_ =
        run_batch(options_, {machine_.files, machine_.clock, machine_.system, machine_.automation},
                  {out, errors_, nullptr});
    return out.str();
  }

  std::string list_of_sample(const std::string& name) {
    std::ifstream in(std::string(QUENDA_SOURCE_DIR "/tests/data/exports/") + name,
                     std::ios::binary);
    return list_of({std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()});
  }

  FakeMachine machine_;
  BatchOptions options_;
  std::ostringstream errors_;
  int status_ = 0;
};

TEST_F(KnownExportsTest, ArriveWithNamesNumbersAndAddresses) {
  struct Case {
    const char* file;
    const char* list;
  };
  const Case cases[] = {
      {"outlook_de.csv",
       "Müller Jörg (geschäftl.)|0307654321|Werkstr. 5 12345 Köln\n"
       "Müller Jörg (privat)|0301234567|Hauptstr. 1 10115 Berlin\n"
       "Müller Jörg (mobil)|01712345678|Hauptstr. 1 10115 Berlin\n"
       "Bäckerei Zum Korn (geschäftl.)|0221445566|\n"},
      {"outlook_de_spreadsheet.csv",
       "Weiß Erika (privat)|0403334445|Am Deich 7, 2. Stock 20095 Hamburg\n"
       "Weiß Erika (mobil)|01601112223|Am Deich 7, 2. Stock 20095 Hamburg\n"},
      {"outlook_en.csv",
       "Koenig Anna (geschäftl.)|0895550101|Marienplatz 8 80331 München\n"
       "Koenig Anna (privat)|0895550102|Marienplatz 8 80331 München\n"},
      {"outlook_com.csv",
       "Dvorák Lukasz (privat)|0305550112|Ringstr. 3 10117 Berlin\n"
       "Dvorák Lukasz (mobil)|01715550111|Ringstr. 3 10117 Berlin\n"
       "Groß Zoë (geschäftl.)|0695550113|\n"},
      {"google_until_2024.csv",
       "Schäfer Jürgen (mobil)|01515550121|Königstr. 2 70173 Stuttgart\n"
       "Schäfer Jürgen (mobil)|01605550122|Königstr. 2 70173 Stuttgart\n"
       "Schäfer Jürgen|07115550123|\n"
       "Praxis Dr. Özdemir (geschäftl.)|07115550124|Marktplatz 1 70173 Stuttgart\n"},
      {"google_since_2024.csv",
       "Lüders Frieda (privat)|0405550132|Elbchaussee 9 22765 Hamburg\n"
       "Lüders Frieda (geschäftl.)|0405550133|Elbchaussee 9 22765 Hamburg\n"
       "Lüders Frieda (mobil)|01725550131|Elbchaussee 9 22765 Hamburg\n"
       "Autohaus Süd (geschäftl.)|0405550134|\n"
       "Autohaus Süd (mobil)|01725550135|\n"},
      {"thunderbird_en.csv",
       "Høeg Nora (geschäftl.)|04315550141|Kai 4 24103 Kiel\n"
       "Høeg Nora (privat)|04315550142|Kai 4 24103 Kiel\n"
       "Høeg Nora (mobil)|01755550143|Kai 4 24103 Kiel\n"
       "Taxi Kiel (geschäftl.)|04315550144|\n"},
      {"thunderbird_de.csv",
       "Krüger René (geschäftl.)|03515550151|Postplatz 2 01067 Dresden\n"
       "Krüger René (geschäftl.)|03515550152|Postplatz 2 01067 Dresden\n"
       "Krüger René (privat)|03515550153|Elbufer 1 01067 Dresden\n"
       "Krüger René (mobil)|01765550154|Elbufer 1 01067 Dresden\n"},
      {"yahoo.csv",
       "Weber Paul (privat)|05115550161|Georgstr. 3 30159 Hannover\n"
       "Weber Paul (mobil)|01775550162|Georgstr. 3 30159 Hannover\n"},
      {"macos_de.tab",
       "Yildiz Müge (geschäftl.)|06215550171|Planken 7 68161 Mannheim\n"
       "Yildiz Müge (mobil)|01785550172|Planken 7 68161 Mannheim\n"},
      {"webmail.csv",
       "Novak Klara (privat)|03415550182|Markt 1 04109 Leipzig\n"
       "Novak Klara (mobil)|01795550181|Markt 1 04109 Leipzig\n"},
      {"router_new.csv", "Günter Voß|04215550191|\n"},
      {"router_old.csv", "Käthe Ruß|04215550193|\n"},
      {"telephone_list.tab",
       "Böhm Karl|03815550201|Ufer 2 18055 Rostock\n"
       "Böhm Karl|03815550203|Ufer 2 18055 Rostock\n"
       "Böhm Karl (mobil)|01705550202|Ufer 2 18055 Rostock\n"},
      {"cards_21.vcf",
       "Schön Jörg (privat)|0305550212|Grüne Gasse 4 10119 Berlin\n"
       "Schön Jörg (mobil)|01715550211|Grüne Gasse 4 10119 Berlin\n"
       "Schön Jörg|0305550213|Grüne Gasse 4 10119 Berlin\n"},
      {"cards_30.vcf",
       "Meier Hans (privat)|0305550224|Lange Str. 1 Hinterhaus 53111 Bonn\n"
       "Meier Hans (geschäftl.)|0305550222|Lange Str. 1 Hinterhaus 53111 Bonn\n"
       "Meier Hans (mobil)|01515550221|Lange Str. 1 Hinterhaus 53111 Bonn\n"
       "Gasthof Ochsen (geschäftl.)|02285550226|\n"},
      {"cards_40.vcf",
       "Dvorák Lucja (privat)|0305550232|\n"
       "Dvorák Lucja (mobil)|01715550231|\n"}};
  for (const Case& c : cases) {
    EXPECT_EQ(replace_all(list_of_sample(c.file), "\t", "|"), c.list) << c.file;
  }
  list_of_sample("outlook_de.csv");
  EXPECT_THAT(errors_.str(),
              HasSubstr("Warnung: 1 Nummer in 1 weiteren Spalte: Weiteres Telefon\n"));
  options_.report = "C:\\report.json";
  list_of_sample("outlook_de.csv");
  EXPECT_THAT(machine_.files.content("C:\\report.json"),
              testing::AllOf(HasSubstr("\"unchosen\":{\"Weiteres Telefon\":1}"),
                             HasSubstr("\"convert\":\"yes\"")));
}

TEST_F(KnownExportsTest, TheSettingAdaptsWhereTheOptionSaysNothing) {
  const std::string utf8 = "Nachname;Vorname;Mobiltelefon\nM\xC3\xBCller;Eva;0171 5550301\n";
  options_.convert.reset();
  machine_.files.put(kSettings, "[Import]\r\nConvert=1\r\n");
  EXPECT_EQ(list_of(utf8), "Müller Eva (mobil)\t01715550301\t\n");
  options_.convert = false;
  EXPECT_EQ(list_of(utf8), "");
  EXPECT_THAT(errors_.str(), HasSubstr("Die Datei ist in UTF-8 geschrieben"));
  options_.convert.reset();
  machine_.files.put(kSettings, "[Import]\r\n");
  EXPECT_EQ(list_of(utf8), "");
}

TEST_F(KnownExportsTest, WhatCannotBeReadIsNamedAndRefused) {
  EXPECT_EQ(list_of("Name;Telefon\r\nA;030 5550302\r\n"), "");
  EXPECT_EQ(status_, kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("von keinem bekannten Export"));
  EXPECT_EQ(list_of("PK\x03\x04...xl/workbook.xml;;;;"), "");
  EXPECT_EQ(status_, kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Die Datei ist eine Arbeitsmappe"));
}

}  // namespace
}  // namespace quenda

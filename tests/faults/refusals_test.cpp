// What the console tool refuses to begin with, or warns of, and the reason that it names.
#include "tests/faults/whole_import.h"

#include <cstdint>
#include <functional>
#include <string>

#include "text/literal_1252.h"

namespace quenda {
namespace {

using testing::HasSubstr;

TEST_F(WholeImport, RefusesSuitesThatAreNone) {
  struct Case {
    std::string name, reason;
    std::function<void()> change;
  };
  const Case cases[] = {
      {"mistyped", "D:\\Siute", [&] { options_.suite = "D:\\Siute"; }},
      {"not a suite", "Quendapaths.ini", [&] { options_.suite = "C:\\elsewhere"; }},
      {"settings a folder", "sett_import.ini",
       [&] { machine_.files.add_folder("D:\\Suite\\data\\sett_import.ini"); }},
      {"leads out", "..",
       [&] {
         machine_.files.put("D:\\Suite\\Quendapaths.ini",
                            "[Paths]\r\nProgramData=0\r\nBookPath=D:\\Suite\\..\\x\r\n");
       }},
      {"paths unreadable", "Quendapaths.ini",
       [&] {
         machine_.files.refuse_reading("D:\\Suite\\Quendapaths.ini", kFaultPermissionDenied);
       }},
      {"paths hidden", "Quendapaths.ini",
       [&] { machine_.files.hide("D:\\Suite\\Quendapaths.ini", kFaultInputOutput); }},
      {"paths a folder", "Quendapaths.ini",
       [&] { machine_.files.add_folder("D:\\Suite\\Quendapaths.ini"); }},
  };
  machine_.files.add_folder("C:\\elsewhere");
  machine_.files.add_folder("D:\\Suite\\data");
  options_.columns = {};  // the real reason is named, not the missing columns
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string suite = options_.suite;
    c.change();
    EXPECT_EQ(run(), kExitRefused);
    EXPECT_THAT(errors_.str(), HasSubstr(c.reason));
    EXPECT_EQ(errors_.str().find("--name"), std::string::npos);
    options_.suite = suite;
  }
}

TEST_F(WholeImport, ShowsNoControlCharactersAndNoEndlessLines) {
  put_book("Bell\x07;0405550199;0;0;0;0;;;[vcd()vcd]\r\nX\x1B[2J" + std::string(5000, 'x') +
           "\r\n");
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Zeile 2: X\\x1b[2Jxxx"));
  EXPECT_LT(errors_.str().size(), 400U);
  EXPECT_EQ(errors_.str().find('\x1B'), std::string::npos);
}

TEST_F(WholeImport, NamesEntriesThatWouldBeTakenForCards) {
  machine_.files.put(kFile, "Name;Festnetz\r\nFalk;030 5550123\r\nA [vcd(x)vcd];0431 555017\r\n");
  EXPECT_EQ(run(), kExitDone);
  EXPECT_THAT(errors_.str(), HasSubstr("Eintrag 2 (A [vcd(x)vcd])"));
}

TEST_F(WholeImport, TellsAnEmptyFileFromOneThatIsNone) {
  machine_.files.put(kFile, "");
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("ist leer"));
  machine_.files.hide(kFile, kFaultPathAccess);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("ist keine Datei"));
}

TEST_F(WholeImport, ALogThatCannotBeReadIsNotOneWithoutCallers) {
  options_.file = "C:\\ispy.log";
  options_.columns = {};
  machine_.files.put(options_.file, "2014-03-02 17:05:09 Erika Mustermann [#0301234567]\r\n");
  machine_.files.refuse_reading(options_.file, kFaultInputOutput);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_EQ(out_.str(), "");
}

TEST_F(WholeImport, FilesAndBooksOver2GigabytesAreRefusedAtOnce) {
  constexpr std::uint64_t kTooLarge = 1ULL << 31U;
  machine_.files.put("C:\\ispy.log", "");
  machine_.files.claim_size("C:\\ispy.log", kTooLarge);
  machine_.files.put("C:\\other.csv", "");
  machine_.files.claim_size("C:\\other.csv", kTooLarge);
  for (const std::string& file : {std::string("C:\\ispy.log"), std::string("C:\\other.csv")}) {
    options_.file = file;
    EXPECT_EQ(run(), kExitRefused);
    EXPECT_THAT(errors_.str(), HasSubstr("gr\xC3\xB6\xC3\x9F"
                                         "er als 2 GB: Teilen Sie sie"));
    EXPECT_EQ(errors_.str().find("Trennzeichen"), std::string::npos);
  }
  options_.file = kFile;
  const std::string old_book = "Zahn;0405550199;0;0;0;0;;;[vcd()vcd]\r\n";
  put_book(old_book);
  machine_.files.claim_size(kBook, kTooLarge);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Das Telefonbuch ist gr\xC3\xB6\xC3\x9F"
                                       "er als 2 GB"));
  EXPECT_EQ(book(), old_book);
}

TEST_F(WholeImport, MoreColumnsThanCanBeCountedAreRefused) {
  std::string header = "Name;Festnetz";
  std::string row = "Falk;0305550123";
  for (int i = 0; i < 33000; ++i) header += ";c", row += ";";
  machine_.files.put(kFile, header + "\r\n" + row + "\r\n");
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_FALSE(machine_.files.exists(kBook));
}

}  // namespace
}  // namespace quenda

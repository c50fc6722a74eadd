// A whole import with one call that fails, for every call: afterwards the book is the old one or
// the new one, and whoever did not get the new one has been told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include "app/quenda-import/batch_run.h"
#include "tests/faults/faulty_files.h"
#include "tests/shared/fakes.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::HasSubstr;

constexpr std::string_view kFile = "C:\\contacts.csv";
constexpr std::string_view kBook = "D:\\Suite\\data\\Quendabook.txt";

constexpr std::string_view kBackup = "D:\\Suite\\data\\backup\\";
constexpr std::string_view kCopyList = "D:\\Suite\\data\\backup\\Quendabook.list";
constexpr std::string_view kUndoRecord = "D:\\Suite\\data\\backup\\Quendabook.undo";
constexpr std::string_view kCopy = "D:\\Suite\\data\\backup\\Quendabook 2014-03-02 17-05-09.txt";

const std::string kFalk = "Falk;0305550123;0;0;0;0;;;[vcd()vcd]\r\n";
const std::string kMayr = "Mayr;0431555017;0;0;0;0;;;[vcd()vcd]\r\n";
const std::string kOther = "Zahn;0405550199;0;0;3;0;Weg 2;;[vcd(N:Zahn;)vcd]\r\n";

struct Scene {
  std::string name;
  std::string before;  // empty: there is no book
  std::string after;
};

const Scene kScenes[] = {
    {"append", kOther, kOther + kFalk + kMayr},
    {"rewrite", "Alt;0305550123;0;0;0;0;;;[vcd()vcd]\r\n" + kOther, kOther + kFalk + kMayr},
    {"shrink",
     "Ein langer alter Name, der geht;0305550123;0;0;0;0;Alte Allee 100;x;[vcd()vcd]\r\n"
     "Ohne Nummer und ohne Bestand, mit langem Namen;;0;0;0;0;;;[vcd()vcd]\r\n" +
         kOther,
     kOther + kFalk + kMayr},
    {"no_book", "", kFalk + kMayr},
};

class WholeImport : public testing::Test {
 protected:
  WholeImport() {
    machine_.files.put("D:\\Suite\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
    machine_.files.put("D:\\Suite\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
    machine_.files.put(kFile, "Name;Festnetz\r\nFalk;030 5550123\r\nMayr;0431 555017\r\n");
    machine_.system.protects = false;
    options_.suite = "D:\\Suite";
    options_.file = kFile;
    options_.columns[kNames] = {"Name"};
    options_.columns[kNumbers] = {"Festnetz"};
    options_.existing = 1;
  }

  void put_book(const std::string& content) {
    machine_.files.remove(kBook);
    if (!content.empty()) machine_.files.put(kBook, content);
  }
  int run() {
    out_.str("");
    errors_.str("");
    return run_batch(options_, {files_, machine_.clock, machine_.system, machine_.automation},
                     {out_, errors_, nullptr});
  }
  int run_undo() {
    const BatchOptions import = options_;
    options_ = {};
    options_.suite = import.suite;
    options_.undo = true;
    const int status = run();
    options_ = import;
    return status;
  }
  void forget_copies() {
    const std::string list = machine_.files.content(kCopyList);
    for (const std::string_view name : split(list, kCrLf)) {
      machine_.files.remove(concat(kBackup, name));
    }
    for (const std::string_view path : {kCopyList, kUndoRecord}) machine_.files.remove(path);
  }
  /// A copy that could not be read gives the entries back in other places.
  static std::multiset<std::string> read_entries(std::string_view book) {
    std::multiset<std::string> entries;
    for (const std::string_view line : split(book, kCrLf)) entries.emplace(line);
    return entries;
  }
  [[nodiscard]] std::string book() const { return machine_.files.content(kBook); }

  FakeMachine machine_;
  FaultyFiles files_{machine_.files};
  BatchOptions options_;
  std::ostringstream out_;
  std::ostringstream errors_;
};

TEST_F(WholeImport, EndsWithTheOldBookOrTheNewOneAndSaysWhich) {
  constexpr int kFaults[] = {kFaultInputOutput, kFaultPermissionDenied, kFaultDiskFull};
  for (const Scene& scene : kScenes) {
    for (int n = 1;; ++n) {
      SCOPED_TRACE(concat(scene.name, " ", std::to_string(n)));
      put_book(scene.before);
      files_.fail(FileCall::kAny, n, kFaults[static_cast<std::size_t>(n) % std::size(kFaults)]);
      const int status = run();
      if (status == kExitDone) {
        EXPECT_EQ(out_.str(), "data\n");
        EXPECT_EQ(book(), scene.after);
      } else {
        EXPECT_EQ(out_.str(), "");
        EXPECT_EQ(book(), scene.before);
        EXPECT_EQ(machine_.files.exists(kBook), !scene.before.empty());
        EXPECT_NE(errors_.str(), "");
      }
      if (!files_.failed()) {
        EXPECT_EQ(status, kExitDone);
        EXPECT_GT(n, 20);
        break;
      }
    }
  }
}

TEST_F(WholeImport, WithACopyTheWayBackLeadsToTheOldBookWhateverFails) {
  options_.backup = true;
  for (const Scene& scene : kScenes) {
    for (int n = 1;; ++n) {
      SCOPED_TRACE(concat(scene.name, " ", std::to_string(n)));
      put_book(scene.before);
      forget_copies();
      files_.fail(FileCall::kAny, n, kFaultDiskFull);
      const int status = run();
      const bool failed = files_.failed();
      EXPECT_EQ(book(), status == kExitDone ? scene.after : scene.before);
      EXPECT_EQ(out_.str(), status == kExitDone ? "data\n" : "");
      files_.fail(FileCall::kAny, 0, 0);
      EXPECT_EQ(run_undo(), kExitDone);
      EXPECT_EQ(out_.str(), status == kExitDone ? "data\n" : "nodata\n");
      EXPECT_EQ(book(), scene.before);
      if (!failed) break;
    }
  }
}

TEST_F(WholeImport, AWayBackThatFailsLeavesTheBookAndCanBeTriedAgain) {
  options_.backup = true;
  const Scene& scene = kScenes[1];
  for (int n = 1;; ++n) {
    SCOPED_TRACE(n);
    forget_copies();
    put_book(scene.before);
    ASSERT_EQ(run(), kExitDone);
    files_.fail(FileCall::kAny, n, kFaultInputOutput);
    const int status = run_undo();
    const bool failed = files_.failed();
    files_.fail(FileCall::kAny, 0, 0);
    if (status != kExitDone || out_.str() == "nodata\n") {
      EXPECT_EQ(book(), scene.after);
      EXPECT_NE(errors_.str(), "");
      EXPECT_EQ(run_undo(), kExitDone);
      EXPECT_EQ(out_.str(), "data\n");
    }
    EXPECT_EQ(read_entries(book()), read_entries(scene.before));
    if (!failed) break;
  }
}

TEST_F(WholeImport, ABookThatChangesMeanwhileIsCopiedAnewAndLeavesNoOtherCopy) {
  options_.backup = true;
  put_book(kOther);
  int changes = 1;
  files_.before_replacing = [&] {
    // The copy, the list and the record come first.
    if (++changes == 5) machine_.files.put(kBook, kOther + kFalk);
  };
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(book(), kOther + kFalk + kMayr);
  files_.before_replacing = nullptr;
  EXPECT_EQ(machine_.files.content(kCopy), kOther + kFalk);
  EXPECT_FALSE(
      machine_.files.exists("D:\\Suite\\data\\backup\\Quendabook 2014-03-02 17-05-09 (2).txt"));
  EXPECT_EQ(run_undo(), kExitDone);
  EXPECT_EQ(book(), kOther + kFalk);
}

TEST_F(WholeImport, AFailureWhileWritingSaysThatTheBookIsUnchanged) {
  for (const FileCall kind : {FileCall::kWritePart, FileCall::kCut, FileCall::kFlush}) {
    put_book(kScenes[1].before);
    files_.fail(kind, 1, kFaultDiskFull);
    EXPECT_EQ(run(), kExitRefused);
    EXPECT_THAT(errors_.str(), HasSubstr("Das Telefonbuch ist unver\xC3\xA4ndert."));
    EXPECT_EQ(book(), kScenes[1].before);
  }
}

TEST_F(WholeImport, MergesIntoWhatAnotherProgramHasWrittenMeanwhile) {
  put_book(kOther);
  int changes = 0;
  files_.before_replacing = [&] {
    if (++changes <= 3)
      put_book(book() + "Neu " + std::to_string(changes) + ";0405551" + std::to_string(changes) +
               ";0;0;0;0;;;[vcd()vcd]\r\n");
  };
  EXPECT_EQ(run(), kExitDone);
  EXPECT_EQ(book(),
            kOther +
                "Neu 1;04055511;0;0;0;0;;;[vcd()vcd]\r\nNeu 2;04055512;0;0;0;0;;;[vcd()vcd]\r\n"
                "Neu 3;04055513;0;0;0;0;;;[vcd()vcd]\r\n" +
                kFalk + kMayr);

  EXPECT_EQ(errors_.str().find("liest es neu"), std::string::npos) << "nobody presses a button";

  changes = -10;
  put_book(kOther);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_EQ(changes, -6) << "three times anew, then no more";
  EXPECT_EQ(out_.str(), "");
  EXPECT_EQ(book().find("Falk"), std::string::npos);
}

TEST_F(WholeImport, ABookThatGoesMeanwhileIsNotMadeAnew) {
  put_book(kOther);
  files_.before_replacing = [&] { put_book(""); };
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_FALSE(machine_.files.exists(kBook));
  EXPECT_NE(errors_.str(), "");
}

TEST_F(WholeImport, AnotherRunAtTheSameBookEndsThisOneAfterAWhile) {
  put_book(kOther);
  machine_.files.hold_lock(kBook);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("30 Sekunden"));
  EXPECT_EQ(book(), kOther);
}

TEST_F(WholeImport, AResultThatNobodyGetsIsNone) {
  put_book(kOther);
  out_.setstate(std::ios::badbit);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Das Telefonbuch ist geschrieben."));
  EXPECT_EQ(book(), kOther + kFalk + kMayr);
  options_.dry_run = true;
  EXPECT_EQ(run(), kExitRefused);
}

TEST_F(WholeImport, RefusesSuitesThatAreNone) {
  struct Case {
    std::string name, reason;
    std::function<void()> change;
  };
  const Case cases[] = {
      {"mistyped", "D:\\Siute", [&] { options_.suite = "D:\\Siute"; }},
      {"not a suite", "Quendapaths.ini", [&] { options_.suite = "C:\\elsewhere"; }},
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
  put_book(kOther);
  machine_.files.claim_size(kBook, kTooLarge);
  EXPECT_EQ(run(), kExitRefused);
  EXPECT_THAT(errors_.str(), HasSubstr("Das Telefonbuch ist gr\xC3\xB6\xC3\x9F"
                                       "er als 2 GB"));
  EXPECT_EQ(book(), kOther);
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

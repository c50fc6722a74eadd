// A whole import with one call that fails, for every call: afterwards the book is the old one or
// the new one, and whoever did not get the new one has been told.
#include "tests/faults/whole_import.h"

#include <set>
#include <string>
#include <string_view>

#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::HasSubstr;

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

}  // namespace
}  // namespace quenda

// What every implementation of Files has to keep to: the one in memory that other tests stand on,
// and the one of the system that the tests run on.
#include "platform/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>

#include "platform/native_services.h"
#include "tests/shared/fake_files.h"
#include "tests/shared/fault_of.h"
#include "text/literal_1252.h"
#include "tools/driver/temp_folder.h"

namespace quenda {
namespace {

/// A file system with one folder to work in.
class Bench {
 public:
  virtual ~Bench() = default;
  virtual Files& files() = 0;
  [[nodiscard]] virtual std::string path(const std::string& name) const = 0;
  virtual void make_folder(const std::string& name) = 0;
  virtual void protect(const std::string& name) = 0;
};

class FakeBench final : public Bench {
 public:
  FakeBench() { files_.add_folder("C:\\work"); }
  Files& files() override { return files_; }
  [[nodiscard]] std::string path(const std::string& name) const override {
    return "C:\\work\\" + name;
  }
  void make_folder(const std::string& name) override { files_.add_folder(path(name)); }
  void protect(const std::string& name) override {
    files_.refuse_writing(path(name), kFaultPathAccess);
  }

 private:
  FakeFiles files_;
};

class NativeBench final : public Bench {
 public:
  Files& files() override { return *files_; }
  [[nodiscard]] std::string path(const std::string& name) const override {
    return folder_.path(name);
  }
  void make_folder(const std::string& name) override {
    std::filesystem::create_directory(folder_.path() / name);
  }
  void protect(const std::string& name) override {
    using std::filesystem::perms;
    std::filesystem::permissions(folder_.path() / name,
                                 perms::owner_write | perms::group_write | perms::others_write,
                                 std::filesystem::perm_options::remove);
  }

 private:
  TempFolder folder_;
  std::unique_ptr<Files> files_ = native_files();
};

class FilesContract : public testing::TestWithParam<bool> {
 protected:
  FilesContract() {
    if (GetParam()) {
      bench_ = std::make_unique<NativeBench>();
    } else {
      bench_ = std::make_unique<FakeBench>();
    }
  }
  [[nodiscard]] Files& files() const { return bench_->files(); }
  [[nodiscard]] std::string path(const std::string& name) const { return bench_->path(name); }
  [[nodiscard]] std::string read(const std::string& name) const { return files().read(path(name)); }
  ReplaceResult replace(const std::string& name, std::string_view old, std::uint64_t keep,
                        std::string_view tail) const {
    // Two pieces, so that what is left of one counts too.
    const TailPieces pieces(
        {tail.substr(0, 2), tail.substr(std::min<std::size_t>(2, tail.size()))});
    return files().replace_tail(path(name), {.old_text = old, .keep = keep, .tail = &pieces});
  }
  void expect_no_reading(const std::string& name, int fault) const {
    EXPECT_EQ(fault_of([&] { static_cast<void>(read(name)); }), fault);
  }
  void expect_no_writing(const std::string& name, int fault) const {
    EXPECT_EQ(fault_of([&] { files().write(path(name), "x"); }), fault);
    EXPECT_EQ(fault_of([&] { files().append(path(name), "x"); }), fault);
    EXPECT_EQ(fault_of([&] { replace(name, "", 0, "x"); }), fault);
  }

  std::unique_ptr<Bench> bench_;
};

INSTANTIATE_TEST_SUITE_P(Files, FilesContract, testing::Bool(),
                         [](const auto& native) { return native.param ? "Native" : "Fake"; });

TEST_P(FilesContract, BytesComeBackAsTheyWereWritten) {
  std::string all;
  for (int code = 0; code < 256; ++code) all.push_back(static_cast<char>(code));
  all += "\r\n\n\r\x1A tail";
  files().write(path("all.bin"), all);
  EXPECT_EQ(read("all.bin"), all);
  EXPECT_EQ(files().size(path("all.bin")), all.size());
  files().write(path("all.bin"), "short");
  EXPECT_EQ(read("all.bin"), "short");
  files().write(path("empty"), "");
  EXPECT_TRUE(files().exists(path("empty")));
  EXPECT_EQ(read("empty"), "");
}

TEST_P(FilesContract, NamesWithUmlautsAndEuroSignAreOneFile) {
  constexpr std::string_view german = u8"Müller €.txt"_de;
  const std::string name(german);
  files().write(path(name), "1");
  files().append(path(name), "2");
  EXPECT_TRUE(files().exists(path(name)));
  EXPECT_EQ(read(name), "12");
}

TEST_P(FilesContract, AppendCreatesAndContinues) {
  files().append(path("log"), "one\r\n");
  files().append(path("log"), "two\r\n");
  EXPECT_EQ(read("log"), "one\r\ntwo\r\n");
}

TEST_P(FilesContract, ReplacesTheTail) {
  struct Case {
    std::string name, before;
    std::uint64_t keep;
    std::string tail, after;
  };
  const Case cases[] = {{"append", "abc", 3, "def", "abcdef"},
                        {"grow", "abcdef", 2, "XYZUVW", "abXYZUVW"},
                        {"same", "abcdef", 3, "XYZ", "abcXYZ"},
                        {"shrink", "abcdef", 1, "X", "aX"},
                        {"cut", "abcdef", 4, "", "abcd"},
                        {"all", "abc", 0, "wxyz", "wxyz"},
                        {"empty", "abc", 0, "", ""}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    files().write(path(c.name), c.before);
    EXPECT_EQ(replace(c.name, c.before, c.keep, c.tail), ReplaceResult::kReplaced);
    EXPECT_EQ(read(c.name), c.after);
  }
  EXPECT_EQ(replace("new", "", 0, "created"), ReplaceResult::kReplaced);
  EXPECT_EQ(read("new"), "created");
}

TEST_P(FilesContract, KeepingMoreThanThereIsChangesNothing) {
  files().write(path("book"), "abc");
  EXPECT_EQ(fault_of([&] { replace("book", "abc", 4, "x"); }), kFaultInvalidCall);
  EXPECT_EQ(read("book"), "abc");
}

TEST_P(FilesContract, WhatOthersHaveChangedSinceItWasReadIsLeftAlone) {
  for (const std::string now : {"abd", "abcd", "ab", "xbc", ""}) {
    files().write(path("book"), now);
    EXPECT_EQ(replace("book", "abc", 2, "x"), ReplaceResult::kChangedMeanwhile) << now;
    EXPECT_EQ(read("book"), now);
  }
  EXPECT_EQ(fault_of([&] { replace("gone", "abc", 2, "x"); }), kFaultFileNotFound);
  EXPECT_FALSE(files().has_file(path("gone")));
}

TEST_P(FilesContract, NotThereIsOnlyWhatTheSystemSaysIsNot) {
  bench_->make_folder("folder");
  files().write(path("file"), "");
  EXPECT_TRUE(files().has_file(path("file")));
  EXPECT_FALSE(files().has_file(path("none")));
  EXPECT_FALSE(files().has_file(path("no\\file")));
  EXPECT_EQ(fault_of([&] { static_cast<void>(files().has_file(path("folder"))); }),
            kFaultPathAccess);
}

TEST_P(FilesContract, ALockLeavesNoFile) {
  const auto lock = files().lock(path("book"), 0);
  EXPECT_NE(lock, nullptr);
  EXPECT_FALSE(files().has_file(path("book")));
}

TEST_P(FilesContract, WhatIsNotThere) {
  EXPECT_FALSE(files().exists(path("none")));
  EXPECT_EQ(files().size(path("none")), 0U);
  EXPECT_EQ(files().stamp(path("none")), 0U);
  expect_no_reading("none", kFaultFileNotFound);
  expect_no_reading("no\\file", kFaultPathNotFound);
  expect_no_writing("no\\file", kFaultPathNotFound);
  files().remove(path("none"));
}

TEST_P(FilesContract, AFolderIsNoFile) {
  bench_->make_folder("folder");
  EXPECT_FALSE(files().exists(path("folder")));
  EXPECT_EQ(files().size(path("folder")), 0U);
  expect_no_reading("folder", kFaultPathAccess);
  expect_no_writing("folder", kFaultPathAccess);
}

TEST_P(FilesContract, AProtectedFileIsReadAndNeverTouched) {
  files().write(path("book"), "old");
  bench_->protect("book");
  expect_no_writing("book", kFaultPathAccess);
  files().remove(path("book"));
  EXPECT_EQ(read("book"), "old");
}

TEST_P(FilesContract, TheStampTellsChangesOfSize) {
  files().write(path("list"), "a");
  const std::uint64_t first = files().stamp(path("list"));
  EXPECT_NE(first, 0U);
  EXPECT_EQ(files().stamp(path("list")), first);
  files().append(path("list"), "b");
  EXPECT_NE(files().stamp(path("list")), first);
}

TEST_P(FilesContract, RemovedFilesAreGone) {
  files().write(path("list"), "a");
  files().remove(path("list"));
  EXPECT_FALSE(files().exists(path("list")));
}

}  // namespace
}  // namespace quenda

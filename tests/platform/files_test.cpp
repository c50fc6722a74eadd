// What every implementation of Files has to keep to: the one in memory that other tests stand on,
// and the one of the system that the tests run on.
#include "platform/files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "platform/native_services.h"
#include "support/fault.h"
#include "support/literal_1252.h"
#include "tests/shared/fake_files.h"
#include "tests/shared/temp_folder.h"

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

template <class Action>
int fault_of(Action action) {
  try {
    action();
    return 0;
  } catch (const RuntimeFault& fault) {
    return fault.number();
  }
}

template <class T>
class FilesContract : public testing::Test {
 protected:
  T bench_;
  Files& files_ = bench_.files();
  [[nodiscard]] std::string path(const std::string& name) const { return bench_.path(name); }
};

std::string german_name() { return std::string(u8"Müller €.txt"_de); }

using Benches = testing::Types<FakeBench, NativeBench>;
TYPED_TEST_SUITE(FilesContract, Benches);

TYPED_TEST(FilesContract, BytesComeBackAsTheyWereWritten) {
  std::string all;
  for (int code = 0; code < 256; ++code) all.push_back(static_cast<char>(code));
  all += "\r\n\n\r\x1A tail";
  this->files_.write(this->path("all.bin"), all);
  EXPECT_EQ(this->files_.read(this->path("all.bin")), all);
  EXPECT_EQ(this->files_.size(this->path("all.bin")), all.size());
  this->files_.write(this->path("all.bin"), "short");
  EXPECT_EQ(this->files_.read(this->path("all.bin")), "short");
  this->files_.write(this->path("empty"), "");
  EXPECT_TRUE(this->files_.exists(this->path("empty")));
  EXPECT_EQ(this->files_.read(this->path("empty")), "");
}

TYPED_TEST(FilesContract, NamesWithUmlautsAndEuroSignAreOneFile) {
  const std::string name = german_name();
  this->files_.write(this->path(name), "1");
  this->files_.append(this->path(name), "2");
  EXPECT_TRUE(this->files_.exists(this->path(name)));
  EXPECT_EQ(this->files_.read(this->path(name)), "12");
}

TYPED_TEST(FilesContract, AppendCreatesAndContinues) {
  this->files_.append(this->path("log"), "one\r\n");
  this->files_.append(this->path("log"), "two\r\n");
  EXPECT_EQ(this->files_.read(this->path("log")), "one\r\ntwo\r\n");
}

TYPED_TEST(FilesContract, ReplacesTheTail) {
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
    this->files_.write(this->path(c.name), c.before);
    this->files_.replace_tail(this->path(c.name), c.keep, c.tail);
    EXPECT_EQ(this->files_.read(this->path(c.name)), c.after);
  }
  this->files_.replace_tail(this->path("new"), 0, "created");
  EXPECT_EQ(this->files_.read(this->path("new")), "created");
}

TYPED_TEST(FilesContract, KeepingMoreThanThereIsChangesNothing) {
  this->files_.write(this->path("book"), "abc");
  EXPECT_EQ(fault_of([&] { this->files_.replace_tail(this->path("book"), 4, "x"); }),
            kFaultInvalidCall);
  EXPECT_EQ(this->files_.read(this->path("book")), "abc");
}

TYPED_TEST(FilesContract, WhatIsNotThere) {
  EXPECT_FALSE(this->files_.exists(this->path("none")));
  EXPECT_EQ(this->files_.size(this->path("none")), 0U);
  EXPECT_EQ(this->files_.stamp(this->path("none")), 0U);
  EXPECT_EQ(fault_of([&] { (void)this->files_.read(this->path("none")); }), kFaultFileNotFound);
  EXPECT_EQ(fault_of([&] { (void)this->files_.read(this->path("no\\file")); }), kFaultPathNotFound);
  EXPECT_EQ(fault_of([&] { this->files_.write(this->path("no\\file"), "x"); }), kFaultPathNotFound);
  EXPECT_EQ(fault_of([&] { this->files_.append(this->path("no\\file"), "x"); }),
            kFaultPathNotFound);
  EXPECT_EQ(fault_of([&] { this->files_.replace_tail(this->path("no\\file"), 0, "x"); }),
            kFaultPathNotFound);
  this->files_.remove(this->path("none"));
}

TYPED_TEST(FilesContract, AFolderIsNoFile) {
  this->bench_.make_folder("folder");
  EXPECT_FALSE(this->files_.exists(this->path("folder")));
  EXPECT_EQ(this->files_.size(this->path("folder")), 0U);
  EXPECT_EQ(fault_of([&] { (void)this->files_.read(this->path("folder")); }), kFaultPathAccess);
  EXPECT_EQ(fault_of([&] { this->files_.write(this->path("folder"), "x"); }), kFaultPathAccess);
  EXPECT_EQ(fault_of([&] { this->files_.replace_tail(this->path("folder"), 0, "x"); }),
            kFaultPathAccess);
}

TYPED_TEST(FilesContract, AProtectedFileIsReadAndNeverTouched) {
  this->files_.write(this->path("book"), "old");
  this->bench_.protect("book");
  EXPECT_EQ(fault_of([&] { this->files_.write(this->path("book"), "x"); }), kFaultPathAccess);
  EXPECT_EQ(fault_of([&] { this->files_.append(this->path("book"), "x"); }), kFaultPathAccess);
  EXPECT_EQ(fault_of([&] { this->files_.replace_tail(this->path("book"), 0, "x"); }),
            kFaultPathAccess);
  this->files_.remove(this->path("book"));
  EXPECT_EQ(this->files_.read(this->path("book")), "old");
}

TYPED_TEST(FilesContract, TheStampTellsChangesOfSize) {
  this->files_.write(this->path("list"), "a");
  const std::uint64_t first = this->files_.stamp(this->path("list"));
  EXPECT_NE(first, 0U);
  EXPECT_EQ(this->files_.stamp(this->path("list")), first);
  this->files_.append(this->path("list"), "b");
  EXPECT_NE(this->files_.stamp(this->path("list")), first);
}

TYPED_TEST(FilesContract, RemovedFilesAreGone) {
  this->files_.write(this->path("list"), "a");
  this->files_.remove(this->path("list"));
  EXPECT_FALSE(this->files_.exists(this->path("list")));
}

}  // namespace
}  // namespace quenda

#include "platform/posix/files_posix.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "app/backup/book_backup.h"
#include "tests/shared/fault_of.h"
#include "tools/driver/temp_folder.h"

namespace quenda {
namespace {

/// No file can grow beyond the limit, as on a full disk, until the end of the scope.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

int fault_of_replacing(PosixFiles& files, const std::string& path, std::uint64_t keep,
                       std::string_view tail) {
  return fault_of([&] {
    const std::string old = files.has_file(path) ? files.read(path) : std::string();
    const TailPieces pieces({tail});
    static_cast<void>(files.replace_tail(path, {.old_text = old, .keep = keep, .tail = &pieces}));
  });
}

TEST(PosixFiles, AFullDiskIsFoundBeforeAnythingIsOverwritten) {
  const TempFolder folder;
  PosixFiles files;
  const std::string old(5000, 'o');
  files.write(folder.path("book"), old);
  int fault = 0;
  int fault_new = 0;
  {
    const FileSizeLimit limit(8192);
    fault = fault_of_replacing(files, folder.path("book"), 10, std::string(20000, 'n'));
    fault_new = fault_of_replacing(files, folder.path("new"), 0, std::string(20000, 'n'));
  }
  EXPECT_EQ(fault, kFaultDiskFull);
  EXPECT_EQ(files.read(folder.path("book")), old);
  EXPECT_EQ(fault_new, kFaultDiskFull);
  EXPECT_FALSE(files.exists(folder.path("new")));
}

TEST(PosixFiles, ABookThatAnotherProgramHoldsIsInUse) {
  const TempFolder folder;
  PosixFiles files;
  files.write(folder.path("book"), "old");
  const int other = open((folder.path() / "book").c_str(), O_WRONLY);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  EXPECT_EQ(fault_of_replacing(files, folder.path("book"), 0, "new"), kFaultPermissionDenied);
  close(other);
  EXPECT_EQ(files.read(folder.path("book")), "old");
  EXPECT_EQ(fault_of_replacing(files, folder.path("book"), 0, "new"), 0);
}

TEST(PosixFiles, AProgramThatHasTheBookOpenMayFinishItsLine) {
  const TempFolder folder;
  PosixFiles files;
  const std::string path = folder.path("book");
  files.write(path, "old\n");
  int opened[2];
  ASSERT_EQ(pipe(opened), 0);
  const pid_t other = fork();
  if (other == 0) {
    const int book = open((folder.path() / "book").c_str(), O_WRONLY | O_APPEND);
    const bool told = write(opened[1], "x", 1) == 1;
    usleep(100'000);
    _exit(told && write(book, "theirs\n", 7) == 7 ? 0 : 1);
  }
  char byte = 0;
  ASSERT_EQ(read(opened[0], &byte, 1), 1);
  const TailPieces tail({"ours\n"});
  const ReplaceResult result =
      files.replace_tail(path, {.old_text = "old\n", .keep = 4, .tail = &tail});
  int status = 0;
  ASSERT_EQ(waitpid(other, &status, 0), other);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(result, ReplaceResult::kChangedMeanwhile);
  EXPECT_EQ(files.read(path), "old\ntheirs\n");
}

TEST(PosixFiles, WhatIsNoFileIsNeitherCreatedNorWaitedFor) {
  const TempFolder folder;
  PosixFiles files;
  ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
  ASSERT_EQ(symlink("nowhere", (folder.path() / "dangling").c_str()), 0);
  ASSERT_EQ(symlink("round", (folder.path() / "round").c_str()), 0);
  for (const char* name : {"pipe", "dangling", "round"}) {
    EXPECT_EQ(fault_of([&] { static_cast<void>(files.has_file(folder.path(name))); }),
              kFaultPathAccess)
        << name;
    EXPECT_EQ(fault_of_replacing(files, folder.path(name), 0, "new"), kFaultPathAccess) << name;
  }
  EXPECT_EQ(fault_of_replacing(files, "\\dev\\null", 0, "new"), kFaultPathAccess);
  EXPECT_FALSE(files.exists(folder.path("nowhere")));
}

TEST(PosixFiles, ARunWaitsForTheOtherOneAtTheSameFolder) {
  const TempFolder folder;
  PosixFiles files;
  auto first = files.lock(folder.path("book"), 0);
  EXPECT_EQ(files.lock(folder.path("book"), 40), nullptr);
  first.reset();
  EXPECT_NE(files.lock(folder.path("book"), 0), nullptr);
}

TEST(PosixFiles, TheCopyOfABookAndWhatIsToldOfItAreForNobodyElse) {
  const TempFolder folder;
  PosixFiles files;
  const std::string book = folder.path("book.txt");
  files.write(book, "Eva;030");
  ASSERT_EQ(chmod((folder.path() / "book.txt").c_str(), 0600), 0);
  BookBackup backup(files, book, {});
  backup.begin({2014, 3, 2, 17, 5, 9}, "Eva;030", true, [](const auto&) { return "Eva"; });
  int seen = 0;
  for (const auto& file : std::filesystem::directory_iterator(folder.path() / "backup")) {
    EXPECT_EQ(file.status().permissions(), std::filesystem::perms{0600}) << file.path();
    ++seen;
  }
  EXPECT_EQ(seen, 3) << "the copy, the list of copies, the record";
}

TEST(PosixFiles, ReadsWhatTellsNoSize) {
  PosixFiles files;
  EXPECT_NE(files.read("\\proc\\self\\status").find("Name:"), std::string::npos);
}

}  // namespace
}  // namespace quenda

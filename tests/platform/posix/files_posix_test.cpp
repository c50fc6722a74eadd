#include "platform/posix/files_posix.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

#include "tests/shared/fault_of.h"
#include "tests/shared/temp_folder.h"

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
                       const std::string& tail) {
  return fault_of([&] { files.replace_tail(path, keep, tail); });
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

TEST(PosixFiles, ReadsWhatTellsNoSize) {
  PosixFiles files;
  EXPECT_NE(files.read("\\proc\\self\\status").find("Name:"), std::string::npos);
}

}  // namespace
}  // namespace quenda

#include "platform/posix/files_posix.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <optional>

#include "platform/posix/open_file.h"
#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr mode_t kWriteBits = 0222;

std::optional<struct stat> status_of(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

bool is_protected(const struct stat& status) {
  return S_ISREG(status.st_mode) && (status.st_mode & kWriteBits) == 0;
}

/// Refuses what Windows would refuse to open for writing.
void check_writable(const std::string& path) {
  const auto status = status_of(path);
  if (status && (S_ISDIR(status->st_mode) || is_protected(*status))) raise_fault(kFaultPathAccess);
}

void check_path(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) raise_fault(kFaultFileNotFound);
}

/// Held by the descriptor of a folder, so that no file is left behind.
class FolderLock final : public FileLock {
 public:
  explicit FolderLock(int descriptor) : descriptor_(descriptor) {}
  ~FolderLock() override {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  [[nodiscard]] bool is_taken_by_another() const {
    return ::flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  }

 private:
  int descriptor_;
};

}  // namespace

std::string posix_path(std::string_view path) {
  std::string native = to_utf8(path);
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

PosixFiles::PosixFiles() {
  // A file that grows beyond what the user may write is a failure to be told, not the end.
  std::signal(SIGXFSZ, SIG_IGN);
}

bool PosixFiles::exists(std::string_view path) const {
  const auto status = status_of(posix_path(path));
  return status && !S_ISDIR(status->st_mode);
}

bool PosixFiles::has_file(std::string_view path) const {
  const std::string native = posix_path(path);
  struct stat status {};
  if (::stat(native.c_str(), &status) == 0) {
    if (!S_ISREG(status.st_mode)) raise_fault(kFaultPathAccess);
    return true;
  }
  const int error = errno;
  if (error != ENOENT && error != ENOTDIR) raise_errno(error, native);
  if (::lstat(native.c_str(), &status) == 0) raise_fault(kFaultPathAccess);
  return false;
}

bool PosixFiles::has_folder(std::string_view path) const {
  const auto status = status_of(posix_path(path));
  return status && S_ISDIR(status->st_mode);
}

std::uint64_t PosixFiles::size(std::string_view path) const {
  const auto status = status_of(posix_path(path));
  return status && !S_ISDIR(status->st_mode) ? static_cast<std::uint64_t>(status->st_size) : 0;
}

std::uint64_t PosixFiles::stamp(std::string_view path) const {
  const auto status = status_of(posix_path(path));
  if (!status || S_ISDIR(status->st_mode)) return 0;
  constexpr std::uint64_t kNanoseconds = 1'000'000'000;
  constexpr std::uint64_t kMixer = 0x9E3779B97F4A7C15;  // spreads the size over all bits
  const auto seconds = static_cast<std::uint64_t>(status->st_mtim.tv_sec);
  const auto fraction = static_cast<std::uint64_t>(status->st_mtim.tv_nsec);
  const std::uint64_t mixed =
      (seconds * kNanoseconds + fraction) ^ (static_cast<std::uint64_t>(status->st_size) * kMixer);
  return mixed == 0 ? 1 : mixed;
}

std::string PosixFiles::read(std::string_view path) const {
  check_path(path);
  const OpenFile file(posix_path(path), O_RDONLY, true);
  if (S_ISDIR(file.status().st_mode)) raise_fault(kFaultPathAccess);
  check_size(file.size());
  // One byte more than the size: the read that fills it short also finds the end. Pipes and files
  // that grow meanwhile are read on until they end. The text grows part by part, so that the zeros
  // it is filled with at first are overwritten while they are still in the cache.
  constexpr std::size_t kMinimum = 4096;
  constexpr std::size_t kPart = 256UL * 1024;
  std::string content;
  std::size_t filled = 0;
  content.reserve(std::max<std::size_t>(static_cast<std::size_t>(file.size()) + 1, kMinimum));
  for (;;) {
    if (filled == content.size()) {
      content.resize(filled + std::clamp(content.capacity() - filled, kMinimum, kPart));
    }
    const ssize_t done =
        ::read(file.descriptor(), content.data() + filled, content.size() - filled);
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) file.fail(errno);
    if (done == 0) break;
    filled += static_cast<std::size_t>(done);
    check_size(filled);
  }
  content.resize(filled);
  return content;
}

void PosixFiles::write(std::string_view path, std::string_view content) {
  check_path(path);
  const std::string native = posix_path(path);
  check_writable(native);
  OpenFile file(native, O_WRONLY | O_CREAT);
  file.lock();
  if (S_ISREG(file.status().st_mode)) file.cut(0);
  file.write_at(0, content);
}

void PosixFiles::append(std::string_view path, std::string_view content) {
  check_path(path);
  const std::string native = posix_path(path);
  check_writable(native);
  // Opened for appending, every write goes to the end, whatever other programs add meanwhile.
  OpenFile file(native, O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW);
  file.write_at(file.size(), content);
}

ReplaceResult PosixFiles::replace_tail(std::string_view path, const TailChange& change) {
  check_path(path);
  const std::string native = posix_path(path);
  check_writable(native);
  if (!has_file(path) && !change.old_text.empty()) raise_errno(ENOENT, native);
  OpenFile file(native, O_RDWR | (change.old_text.empty() ? O_CREAT : 0));
  if (!S_ISREG(file.status().st_mode)) raise_fault(kFaultPathAccess);
  try {
    file.lock();
    if (const auto model =
            change.rights_of.empty() ? std::nullopt : status_of(posix_path(change.rights_of))) {
      file.take_rights(*model);
    }
    return replace_tail_of(file, change);
  } catch (const RuntimeFault&) {
    if (file.created()) ::unlink(native.c_str());
    throw;
  }
}

std::unique_ptr<FileLock> PosixFiles::lock(std::string_view path, std::uint32_t milliseconds) {
  constexpr std::uint32_t kPause = 20;
  const std::string native = posix_path(path);
  const auto slash = native.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : native.substr(0, slash + 1);
  auto held =
      std::make_unique<FolderLock>(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  for (std::uint32_t waited = 0; held->is_taken_by_another(); waited += kPause) {
    if (waited >= milliseconds) return nullptr;
    const timespec pause{0, kPause * 1'000'000L};
    ::nanosleep(&pause, nullptr);
  }
  return held;
}

bool PosixFiles::same_file(std::string_view a, std::string_view b) const {
  const auto first = status_of(posix_path(a));
  const auto second = status_of(posix_path(b));
  return first && second && first->st_dev == second->st_dev && first->st_ino == second->st_ino;
}

bool PosixFiles::can_write(std::string_view path) const {
  const std::string native = posix_path(path);
  if (native.empty() || native.find('\0') != native.npos) return false;
  if (const auto status = status_of(native)) {
    if (S_ISDIR(status->st_mode) || is_protected(*status)) return false;
    return ::access(native.c_str(), W_OK) == 0;
  }
  const auto slash = native.rfind('/');
  const std::string folder = slash == native.npos ? "." : native.substr(0, slash + 1);
  return slash + 1 != native.size() && ::access(folder.c_str(), W_OK | X_OK) == 0;
}

void PosixFiles::make_folder(std::string_view path) {
  constexpr mode_t kUsual = 0777;
  const std::string native = posix_path(path);
  if (::mkdir(native.c_str(), kUsual) == 0) return;
  const int error = errno;
  const auto status = status_of(native);
  if (!status || !S_ISDIR(status->st_mode)) raise_errno(error, native);
}

void PosixFiles::remove(std::string_view path) noexcept {
  const std::string native = posix_path(path);
  const auto status = status_of(native);
  if (status && !is_protected(*status)) ::unlink(native.c_str());
}

}  // namespace quenda

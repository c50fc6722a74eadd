#include "platform/posix/files_posix.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kWriteBits = 0222;

std::optional<struct stat> status_of(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

bool is_protected(const struct stat& status) {
  return S_ISREG(status.st_mode) && (status.st_mode & kWriteBits) == 0;
}

bool folder_is_there(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return true;
  const auto folder = status_of(path.substr(0, slash + 1));
  return folder && S_ISDIR(folder->st_mode);
}

[[noreturn]] void raise_errno(int error, const std::string& path) {
  switch (error) {
    case ENOENT:
      raise_fault(folder_is_there(path) ? kFaultFileNotFound : kFaultPathNotFound);
    case ENOTDIR:
      raise_fault(kFaultPathNotFound);
    case EACCES:
    case EPERM:
    case EBUSY:
    case ETXTBSY:
    case EWOULDBLOCK:
      raise_fault(kFaultPermissionDenied);
    case EISDIR:
    case EROFS:
      raise_fault(kFaultPathAccess);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      raise_fault(kFaultDiskFull);
    default:
      raise_fault(kFaultInputOutput);
  }
}

/// An open file, closed at the end of its scope.
class OpenFile {
 public:
  OpenFile(const std::string& path, int flags)
      : path_(path), descriptor_(::open(path.c_str(), flags | O_CLOEXEC, kNewFileMode)) {
    if (descriptor_ < 0) raise_errno(errno, path_);
    if (::fstat(descriptor_, &status_) != 0) fail(errno);
  }
  ~OpenFile() { ::close(descriptor_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] int descriptor() const { return descriptor_; }
  [[nodiscard]] const struct stat& status() const { return status_; }
  [[nodiscard]] std::uint64_t size() const { return static_cast<std::uint64_t>(status_.st_size); }
  [[noreturn]] void fail(int error) const { raise_errno(error, path_); }

  /// Keeps other writers out until the file is closed. Systems without locks go on without one.
  void lock() const {
    if (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) fail(EWOULDBLOCK);
  }

  /// Writes all bytes from the offset on; the result is 0 or the error number.
  [[nodiscard]] int write_at(std::uint64_t offset, std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t done =
          ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(offset));
      if (done < 0 && errno == EINTR) continue;
      if (done < 0) return errno;
      if (done == 0) return ENOSPC;
      bytes.remove_prefix(static_cast<std::size_t>(done));
      offset += static_cast<std::uint64_t>(done);
    }
    return 0;
  }

  [[nodiscard]] int cut(std::uint64_t length) const {
    return ::ftruncate(descriptor_, static_cast<off_t>(length)) == 0 ? 0 : errno;
  }

 private:
  std::string path_;
  int descriptor_;
  struct stat status_ {};
};

/// Refuses what Windows would refuse to open for writing.
void check_writable(const std::string& path) {
  const auto status = status_of(path);
  if (status && (S_ISDIR(status->st_mode) || is_protected(*status))) raise_fault(kFaultPathAccess);
}

void check_path(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) raise_fault(kFaultFileNotFound);
}

void succeed(const OpenFile& file, int error) {
  if (error != 0) file.fail(error);
}

}  // namespace

std::string posix_path(std::string_view path) {
  std::string native = to_utf8(path);
  std::replace(native.begin(), native.end(), '\\', '/');
  return native;
}

bool PosixFiles::exists(std::string_view path) const {
  const auto status = status_of(posix_path(path));
  return status && !S_ISDIR(status->st_mode);
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
  const OpenFile file(posix_path(path), O_RDONLY);
  if (S_ISDIR(file.status().st_mode)) raise_fault(kFaultPathAccess);
  // One byte more than the size: the read that fills it short also finds the end. Pipes and files
  // that grow meanwhile are read on until they end.
  constexpr std::size_t kMinimum = 4096;
  std::string content;
  std::size_t filled = 0;
  content.resize(std::max<std::size_t>(static_cast<std::size_t>(file.size()) + 1, kMinimum));
  for (;;) {
    if (filled == content.size()) content.resize(content.size() * 2);
    const ssize_t done =
        ::read(file.descriptor(), content.data() + filled, content.size() - filled);
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) file.fail(errno);
    if (done == 0) break;
    filled += static_cast<std::size_t>(done);
  }
  content.resize(filled);
  return content;
}

void PosixFiles::write(std::string_view path, std::string_view content) {
  check_path(path);
  const std::string native = posix_path(path);
  check_writable(native);
  const OpenFile file(native, O_WRONLY | O_CREAT);
  file.lock();
  if (S_ISREG(file.status().st_mode)) succeed(file, file.cut(0));
  succeed(file, file.write_at(0, content));
}

void PosixFiles::append(std::string_view path, std::string_view content) {
  check_path(path);
  const std::string native = posix_path(path);
  check_writable(native);
  const OpenFile file(native, O_WRONLY | O_CREAT | O_APPEND);
  // Opened for appending, every write goes to the end, whatever other programs add meanwhile.
  succeed(file, file.write_at(file.size(), content));
}

void PosixFiles::replace_tail(std::string_view path, std::uint64_t keep, std::string_view tail) {
  check_path(path);
  const std::string native = posix_path(path);
  check_writable(native);
  const bool existed = status_of(native).has_value();
  const OpenFile file(native, O_WRONLY | O_CREAT);
  file.lock();
  const std::uint64_t old_size = file.size();
  if (keep > old_size) raise_fault(kFaultInvalidCall);
  const std::uint64_t replaced = std::min<std::uint64_t>(old_size - keep, tail.size());
  if (const int error = file.write_at(old_size, tail.substr(replaced)); error != 0) {
    if (existed) {
      succeed(file, file.cut(old_size));
    } else {
      ::unlink(native.c_str());
    }
    file.fail(error);
  }
  succeed(file, file.write_at(keep, tail.substr(0, replaced)));
  if (keep + tail.size() < old_size) succeed(file, file.cut(keep + tail.size()));
  if (::fsync(file.descriptor()) != 0 && errno != EINVAL) file.fail(errno);
}

void PosixFiles::remove(std::string_view path) noexcept {
  const std::string native = posix_path(path);
  const auto status = status_of(native);
  if (status && !is_protected(*status)) ::unlink(native.c_str());
}

}  // namespace quenda

#include "platform/posix/open_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "text/fault.h"

namespace quenda {
namespace {

constexpr mode_t kNewFileMode = 0666;
// A second altogether.
constexpr int kLeaseTries = 200;
constexpr long kLeasePause = 5'000'000;  // nanoseconds

bool folder_is_there(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return true;
  struct stat folder {};
  return ::stat(path.substr(0, slash + 1).c_str(), &folder) == 0 && S_ISDIR(folder.st_mode);
}

/// The call's result, asked again as long as a signal came in between.
template <class Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace

void raise_errno(int error, const std::string& path) {
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
    case ENXIO:
    case ELOOP:
      raise_fault(kFaultPathAccess);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      raise_fault(kFaultDiskFull);
    case ENOMEM:
      raise_fault(kFaultOutOfMemory);
    default:
      raise_fault(kFaultInputOutput);
  }
}

OpenFile::OpenFile(const std::string& path, int flags, bool waits) : path_(path) {
  const int how = flags | O_CLOEXEC | (waits ? 0 : O_NONBLOCK);
  const auto open_as = [&](int open_flags) {
    return uninterrupted([&] { return ::open(path.c_str(), open_flags, kNewFileMode); });
  };
  // Two steps for a file to be created: whether it is new has to be known, since a new one goes
  // again when it cannot be filled.
  descriptor_ = open_as(how & ~O_CREAT);
  if (descriptor_ < 0 && errno == ENOENT && (flags & O_CREAT) != 0) {
    descriptor_ = open_as(how | O_EXCL);
    created_ = descriptor_ >= 0;
    if (!created_ && errno == EEXIST) descriptor_ = open_as(how & ~O_CREAT);
  }
  if (descriptor_ < 0) fail(errno);
  if (::fstat(descriptor_, &status_) == 0) return;
  const int error = errno;
  ::close(descriptor_);
  if (created_) ::unlink(path.c_str());
  fail(error);
}

OpenFile::~OpenFile() { ::close(descriptor_); }

void OpenFile::take_rights(const struct stat& model) {
  constexpr mode_t kRights = 0777;
  mode_t rights = model.st_mode & kRights;
  const bool own_group =
      status_.st_gid == model.st_gid || ::fchown(descriptor_, -1U, model.st_gid) == 0;
  // What a group may is meant for that group.
  if (!own_group) rights &= ~static_cast<mode_t>(S_IRWXG);
  if ((status_.st_mode & kRights) == rights) return;
  // The rights of a file that was there may be another user's affair.
  if (::fchmod(descriptor_, rights) != 0 && created_) fail(errno);
}

void OpenFile::lock() {
  // Systems without locks go on without one.
  if (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) fail(EWOULDBLOCK);
#ifdef F_SETLEASE
  // Whoever opens the file from now on waits until it is closed here. There is no such lease for
  // the file of another user, or while somebody has the file open: who does may be about to write,
  // so they get some time. The news that somebody waits would be a signal, so nobody is named who
  // gets it.
  int leased = ::fcntl(descriptor_, F_SETLEASE, F_WRLCK);
  for (int tries = 0; leased != 0 && errno == EAGAIN && tries < kLeaseTries; ++tries) {
    const timespec pause{0, kLeasePause};
    ::nanosleep(&pause, nullptr);
    leased = ::fcntl(descriptor_, F_SETLEASE, F_WRLCK);
  }
  if (leased == 0) ::fcntl(descriptor_, F_SETOWN, 0);
#endif
  if (::fstat(descriptor_, &status_) != 0) fail(errno);
}

std::size_t OpenFile::read_at(std::uint64_t position, std::span<char> buffer) const {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const auto done = uninterrupted([&] {
      return ::pread(descriptor_, buffer.data() + filled, buffer.size() - filled,
                     static_cast<off_t>(position + filled));
    });
    if (done < 0) fail(errno);
    if (done == 0) break;
    filled += static_cast<std::size_t>(done);
  }
  return filled;
}

void OpenFile::write_at(std::uint64_t position, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto done = uninterrupted([&] {
      return ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(position));
    });
    if (done < 0) fail(errno);
    if (done == 0) fail(ENOSPC);
    bytes.remove_prefix(static_cast<std::size_t>(done));
    position += static_cast<std::uint64_t>(done);
  }
}

void OpenFile::cut(std::uint64_t length) {
  const auto done =
      uninterrupted([&] { return ::ftruncate(descriptor_, static_cast<off_t>(length)); });
  if (done != 0) fail(errno);
}

void OpenFile::flush() {
  // Some file systems know of no flushing, and say that it is an invalid call.
  const auto done = uninterrupted([&] { return ::fsync(descriptor_); });
  if (done != 0 && errno != EINVAL) fail(errno);
}

}  // namespace quenda

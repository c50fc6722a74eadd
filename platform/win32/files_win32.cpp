#include "platform/win32/files_win32.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "platform/tail_writing.h"
#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "text/fault.h"

namespace quenda {
namespace {

// The cross compiler's headers lack the name.
constexpr DWORD kQuotaExceeded = 1295;
constexpr std::uint64_t kLargestPiece = 1ULL << 30U;
constexpr DWORD kLongPath = 32768;

[[noreturn]] void raise_last_error(const std::wstring& path) {
  raise_fault(fault_of_error(GetLastError(), path.c_str()));
}

/// A file that is open for one operation; what goes wrong is raised with its path in view.
class OpenFile final : public TailFile {
 public:
  OpenFile(std::string_view path, DWORD access, DWORD share, DWORD disposition)
      : path_(wide(path)),
        handle_(CreateFileW(path_.c_str(), access, share, nullptr, disposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr)),
        created_(disposition == OPEN_ALWAYS && GetLastError() != ERROR_ALREADY_EXISTS) {
    if (!handle_) raise_last_error(path_);
  }

  [[nodiscard]] bool created() const { return created_; }

  [[nodiscard]] std::uint64_t size() const override {
    LARGE_INTEGER size{};
    if (GetFileSizeEx(handle_.get(), &size) == 0) raise_last_error(path_);
    return static_cast<std::uint64_t>(size.QuadPart);
  }

  [[nodiscard]] std::string read_all() const {
    check_size(size());
    std::string content(size(), '\0');
    content.resize(read_at(0, {content.data(), content.size()}));
    return content;
  }

  [[nodiscard]] std::size_t read_at(std::uint64_t position, std::span<char> buffer) const override {
    move_to(position);
    std::size_t done = 0;
    while (done < buffer.size()) {
      const auto piece = static_cast<DWORD>(std::min(buffer.size() - done, kLargestPiece));
      DWORD got = 0;
      if (ReadFile(handle_.get(), buffer.data() + done, piece, &got, nullptr) == 0) {
        raise_last_error(path_);
      }
      if (got == 0) break;
      done += got;
    }
    return done;
  }

  void write_at(std::uint64_t position, std::string_view bytes) override {
    move_to(position);
    while (!bytes.empty()) {
      const auto piece = static_cast<DWORD>(std::min(bytes.size(), kLargestPiece));
      DWORD written = 0;
      if (WriteFile(handle_.get(), bytes.data(), piece, &written, nullptr) == 0) {
        raise_last_error(path_);
      }
      bytes.remove_prefix(written);
    }
  }

  void cut(std::uint64_t length) override {
    if (!try_move_to(length) || SetEndOfFile(handle_.get()) == 0) raise_last_error(path_);
  }

  void flush() override {
    if (FlushFileBuffers(handle_.get()) == 0) raise_last_error(path_);
  }

 private:
  void move_to(std::uint64_t position) const {
    if (!try_move_to(position)) raise_last_error(path_);
  }

  [[nodiscard]] bool try_move_to(std::uint64_t position) const noexcept {
    LARGE_INTEGER to{};
    to.QuadPart = static_cast<LONGLONG>(position);
    return SetFilePointerEx(handle_.get(), to, nullptr, FILE_BEGIN) != 0;
  }

  std::wstring path_;
  FileHandle handle_;
  bool created_;
};

using Mutex = Handle<HANDLE, &CloseHandle>;

/// A mutex that goes with the process at the latest.
class MutexLock final : public FileLock {
 public:
  explicit MutexLock(Mutex mutex) : mutex_(std::move(mutex)) {}
  ~MutexLock() override { ReleaseMutex(mutex_.get()); }
  MutexLock(const MutexLock&) = delete;
  MutexLock& operator=(const MutexLock&) = delete;

 private:
  Mutex mutex_;
};

/// A name for the file in all sessions, whatever way leads to it: names of mutexes are short and
/// hold no backslash, so it is made of a number.
std::wstring mutex_name(std::string_view path) {
  std::wstring full(kLongPath, L'\0');
  const std::wstring given = wide(path);
  const DWORD length = GetFullPathNameW(given.c_str(), kLongPath, full.data(), nullptr);
  full.resize(length < kLongPath ? length : 0);
  if (full.empty()) full = given;
  CharLowerBuffW(full.data(), static_cast<DWORD>(full.size()));
  constexpr std::uint64_t kOffset = 0xCBF29CE484222325ULL;
  constexpr std::uint64_t kPrime = 0x100000001B3ULL;
  std::uint64_t hash = kOffset;
  for (const wchar_t character : full) hash = (hash ^ character) * kPrime;
  return L"Global\\Quenda-" + std::to_wstring(hash);
}

WIN32_FILE_ATTRIBUTE_DATA attributes_of(std::string_view path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(wide(path).c_str(), GetFileExInfoStandard, &data) == 0) {
    data.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY;
  }
  return data;
}

std::uint64_t joined(DWORD high, DWORD low) {
  return (static_cast<std::uint64_t>(high) << 32U) | low;
}

/// Refuses a read-only file before it is opened: where the user may do everything, opening it for
/// writing would succeed.
void check_writable(std::string_view path) {
  const DWORD attributes = attributes_of(path).dwFileAttributes;
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) raise_fault(kFaultPathAccess);
}

}  // namespace

int fault_of_error(unsigned long error, const wchar_t* path) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return kFaultFileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
      return kFaultPathNotFound;
    case ERROR_ACCESS_DENIED: {
      const DWORD attributes = GetFileAttributesW(path);
      const DWORD refusing = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
      const bool known = attributes != INVALID_FILE_ATTRIBUTES && (attributes & refusing) != 0;
      return known ? kFaultPathAccess : kFaultPermissionDenied;
    }
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
      return kFaultPermissionDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kQuotaExceeded:
      return kFaultDiskFull;
    default:
      return kFaultInputOutput;
  }
}

bool Win32Files::exists(std::string_view path) const {
  return (attributes_of(path).dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool Win32Files::has_file(std::string_view path) const {
  const std::wstring native = wide(path);
  const DWORD attributes = GetFileAttributesW(native.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) {
    constexpr DWORD kNoFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
    if ((attributes & kNoFile) != 0) raise_fault(kFaultPathAccess);
    return true;
  }
  const DWORD error = GetLastError();
  if (error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND) {
    raise_fault(fault_of_error(error, native.c_str()));
  }
  return false;
}

bool Win32Files::has_folder(std::string_view path) const {
  const DWORD attributes = GetFileAttributesW(wide(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::uint64_t Win32Files::size(std::string_view path) const {
  const auto data = attributes_of(path);
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return 0;
  return joined(data.nFileSizeHigh, data.nFileSizeLow);
}

std::uint64_t Win32Files::stamp(std::string_view path) const {
  constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15ULL;
  const auto data = attributes_of(path);
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return 0;
  const auto written =
      joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
  const auto stamp = joined(data.nFileSizeHigh, data.nFileSizeLow) * kSpread ^ written;
  return stamp == 0 ? 1 : stamp;
}

std::string Win32Files::read(std::string_view path) const {
  return OpenFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  OPEN_EXISTING)
      .read_all();
}

void Win32Files::write(std::string_view path, std::string_view content) {
  check_writable(path);
  OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  file.write_at(0, content);
  file.cut(content.size());
}

void Win32Files::append(std::string_view path, std::string_view content) {
  check_writable(path);
  if ((attributes_of(path).dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    raise_fault(kFaultPathAccess);
  }
  OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  file.write_at(file.size(), content);
}

ReplaceResult Win32Files::replace_tail(std::string_view path, const TailChange& change) {
  check_writable(path);
  bool created = false;
  try {
    OpenFile file(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                  change.old_text.empty() ? OPEN_ALWAYS : OPEN_EXISTING);
    created = file.created();
    return replace_tail_of(file, change);
  } catch (const RuntimeFault&) {
    if (created) remove(path);
    throw;
  }
}

std::unique_ptr<FileLock> Win32Files::lock(std::string_view path, std::uint32_t milliseconds) {
  const std::wstring name = mutex_name(path);
  Mutex mutex(CreateMutexW(nullptr, FALSE, name.c_str()));
  // Another user's may be waited for, not more.
  if (!mutex) mutex.reset(OpenMutexW(SYNCHRONIZE, FALSE, name.c_str()));
  if (WaitForSingleObject(mutex.get(), milliseconds) == WAIT_TIMEOUT) return nullptr;
  return std::make_unique<MutexLock>(std::move(mutex));
}

bool Win32Files::same_file(std::string_view a, std::string_view b) const {
  const auto identity = [](std::string_view path) -> std::optional<BY_HANDLE_FILE_INFORMATION> {
    const FileHandle file(CreateFileW(wide(path).c_str(), 0,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    BY_HANDLE_FILE_INFORMATION data{};
    if (!file || GetFileInformationByHandle(file.get(), &data) == 0) return std::nullopt;
    return data;
  };
  const auto first = identity(a);
  const auto second = identity(b);
  return first && second && first->dwVolumeSerialNumber == second->dwVolumeSerialNumber &&
         first->nFileIndexHigh == second->nFileIndexHigh &&
         first->nFileIndexLow == second->nFileIndexLow;
}

bool Win32Files::can_write(std::string_view path) const {
  const std::wstring native = wide(path);
  const DWORD attributes = GetFileAttributesW(native.c_str());
  const bool there = attributes != INVALID_FILE_ATTRIBUTES;
  if (there && (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) {
    return false;
  }
  // A file that is only made to find out goes with its handle.
  const DWORD flags = there ? FILE_ATTRIBUTE_NORMAL : FILE_FLAG_DELETE_ON_CLOSE;
  const DWORD access = there ? GENERIC_WRITE : GENERIC_WRITE | DELETE;
  return static_cast<bool>(
      FileHandle(CreateFileW(native.c_str(), access, FILE_SHARE_READ, nullptr,
                             there ? OPEN_EXISTING : CREATE_NEW, flags, nullptr)));
}

void Win32Files::make_folder(std::string_view path) {
  const std::wstring native = wide(path);
  if (CreateDirectoryW(native.c_str(), nullptr) != 0) return;
  const DWORD error = GetLastError();
  const DWORD attributes = GetFileAttributesW(native.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    raise_fault(fault_of_error(error, native.c_str()));
  }
}

void Win32Files::remove(std::string_view path) noexcept { DeleteFileW(wide(path).c_str()); }

}  // namespace quenda

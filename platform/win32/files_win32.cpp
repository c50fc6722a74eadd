#include "platform/win32/files_win32.h"

#include <algorithm>
#include <string>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "text/fault.h"

namespace quenda {
namespace {

// The cross compiler's headers lack the name.
constexpr DWORD kQuotaExceeded = 1295;
constexpr std::uint64_t kLargestPiece = 1ULL << 30U;

[[noreturn]] void raise_last_error(const std::wstring& path) {
  raise_fault(fault_of_error(GetLastError(), path.c_str()));
}

/// A file that is open for one operation; what goes wrong is raised with its path in view.
class OpenFile {
 public:
  OpenFile(std::string_view path, DWORD access, DWORD share, DWORD disposition)
      : path_(wide(path)),
        handle_(CreateFileW(path_.c_str(), access, share, nullptr, disposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr)),
        created_(disposition == OPEN_ALWAYS && GetLastError() != ERROR_ALREADY_EXISTS) {
    if (!handle_) raise_last_error(path_);
  }

  [[nodiscard]] bool created() const { return created_; }

  [[nodiscard]] std::uint64_t size() const {
    LARGE_INTEGER size{};
    if (GetFileSizeEx(handle_.get(), &size) == 0) raise_last_error(path_);
    return static_cast<std::uint64_t>(size.QuadPart);
  }

  [[nodiscard]] std::string read_all() const {
    std::string content(size(), '\0');
    std::size_t done = 0;
    while (done < content.size()) {
      const auto piece = static_cast<DWORD>(std::min(content.size() - done, kLargestPiece));
      DWORD got = 0;
      if (ReadFile(handle_.get(), content.data() + done, piece, &got, nullptr) == 0) {
        raise_last_error(path_);
      }
      if (got == 0) break;
      done += got;
    }
    content.resize(done);
    return content;
  }

  void write_at(std::uint64_t position, std::string_view bytes) const {
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

  void cut_at(std::uint64_t length) const {
    if (!try_cut_at(length)) raise_last_error(path_);
  }

  [[nodiscard]] bool try_cut_at(std::uint64_t length) const noexcept {
    return try_move_to(length) && SetEndOfFile(handle_.get()) != 0;
  }

  void flush() const {
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

/// Gives back what a longer file took of the disk, unless it has been kept.
class AddedSpace {
 public:
  AddedSpace(const OpenFile& file, std::uint64_t old_size) : file_(file), old_size_(old_size) {}
  AddedSpace(const AddedSpace&) = delete;
  AddedSpace& operator=(const AddedSpace&) = delete;
  ~AddedSpace() {
    if (!kept_) static_cast<void>(file_.try_cut_at(old_size_));
  }
  void keep() { kept_ = true; }

 private:
  const OpenFile& file_;
  std::uint64_t old_size_;
  bool kept_ = false;
};

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
  const OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  file.write_at(0, content);
  file.cut_at(content.size());
}

void Win32Files::append(std::string_view path, std::string_view content) {
  check_writable(path);
  const OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  file.write_at(file.size(), content);
}

void Win32Files::replace_tail(std::string_view path, std::uint64_t keep, std::string_view tail) {
  check_writable(path);
  const OpenFile file(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  const std::uint64_t old_size = file.size();
  if (keep > old_size) raise_fault(kFaultInvalidCall);
  const std::uint64_t overwritten = old_size - keep;
  if (tail.size() > overwritten) {
    AddedSpace added(file, old_size);
    file.write_at(keep + overwritten, tail.substr(overwritten));
    file.flush();
    added.keep();
  }
  file.write_at(keep, tail.substr(0, overwritten));
  if (tail.size() < overwritten) file.cut_at(keep + tail.size());
  file.flush();
}

void Win32Files::remove(std::string_view path) noexcept { DeleteFileW(wide(path).c_str()); }

}  // namespace quenda

#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/tail_writing.h"

namespace quenda {

/// Raises the fault that stands for an error number of the system about a file.
[[noreturn]] void raise_errno(int error, const std::string& path);

/// An open file, closed at the end of its scope. Unless it says otherwise, what fails is raised.
class OpenFile final : public TailFile {
 public:
  /// Opens without waiting for anybody at the other end of a pipe unless `waits`.
  OpenFile(const std::string& path, int flags, bool waits = false);
  ~OpenFile() override;
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] int descriptor() const { return descriptor_; }
  /// The file as it was when it was opened.
  [[nodiscard]] const struct stat& status() const { return status_; }
  [[nodiscard]] std::uint64_t size() const override {
    return static_cast<std::uint64_t>(status_.st_size);
  }
  /// Whether the file is new.
  [[nodiscard]] bool created() const { return created_; }
  [[noreturn]] void fail(int error) const { raise_errno(error, path_); }

  /// Keeps other writers out until the file is closed: programs that ask for locks, and where the
  /// system lets us, those that do not. Fault 70 when another one is at it.
  void lock();

  /// Who may read and write it is the same as with another file from now on.
  void take_rights(const struct stat& model);

  [[nodiscard]] std::size_t read_at(std::uint64_t position, std::span<char> buffer) const override;
  void write_at(std::uint64_t position, std::string_view bytes) override;
  void cut(std::uint64_t length) override;
  void flush() override;

 private:
  std::string path_;
  int descriptor_ = -1;
  bool created_ = false;
  struct stat status_ {};
};

}  // namespace quenda

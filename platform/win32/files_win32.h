#pragma once

#include "platform/files.h"

namespace quenda {

class Win32Files : public Files {
 public:
  [[nodiscard]] bool exists(std::string_view path) const override;
  [[nodiscard]] bool has_file(std::string_view path) const override;
  [[nodiscard]] bool has_folder(std::string_view path) const override;
  [[nodiscard]] std::uint64_t size(std::string_view path) const override;
  [[nodiscard]] std::uint64_t stamp(std::string_view path) const override;
  [[nodiscard]] std::string read(std::string_view path) const override;
  void write(std::string_view path, std::string_view content) override;
  void append(std::string_view path, std::string_view content) override;
  [[nodiscard]] ReplaceResult replace_tail(std::string_view path,
                                           const TailChange& change) override;
  [[nodiscard]] std::unique_ptr<FileLock> lock(std::string_view path,
                                               std::uint32_t milliseconds) override;
  [[nodiscard]] bool same_file(std::string_view a, std::string_view b) const override;
  [[nodiscard]] bool can_write(std::string_view path) const override;
  void make_folder(std::string_view path) override;
  void remove(std::string_view path) noexcept override;
};

/// The fault that stands for an error code of the system about a file.
int fault_of_error(unsigned long error, const wchar_t* path);

}  // namespace quenda

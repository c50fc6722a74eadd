#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace quenda {

/// A file system in memory. Letter case of paths does not matter, as under Windows. It can be told
/// to have protected or locked files, or a full disk.
class FakeFiles final : public Files {
 public:
  /// Places a file, and makes its folder known.
  void put(std::string_view path, std::string_view content);
  void add_folder(std::string_view path);
  /// Writing to the path fails with that fault from now on; 0 takes it back.
  void refuse_writing(std::string_view path, int fault);
  /// Reading the path fails with that fault from now on; 0 takes it back.
  void refuse_reading(std::string_view path, int fault);
  /// The system cannot say from now on whether the file is there.
  void hide(std::string_view path, int fault);
  /// Another run is at the file, and stays.
  void hold_lock(std::string_view path);
  /// The content, or the empty text for no file.
  [[nodiscard]] std::string content(std::string_view path) const;
  /// The file says to have so many bytes.
  void claim_size(std::string_view path, std::uint64_t bytes);
  /// How often a file was written, appended to or replaced in part.
  [[nodiscard]] int writes(std::string_view path) const;

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

 private:
  struct Entry {
    std::string content;
    std::uint64_t stamp = 0;
    int writes = 0;
  };
  [[nodiscard]] const Entry* find(std::string_view path) const;
  void check_writable(const std::string& key) const;
  void store(const std::string& key, std::string content);

  std::map<std::string, Entry> entries_;
  std::set<std::string> folders_;
  std::map<std::string, std::uint64_t> claimed_sizes_;
  std::map<std::string, int> refused_writing_;
  std::map<std::string, int> refused_reading_;
  std::map<std::string, int> unclear_;
  std::set<std::string> locked_;
  std::uint64_t next_stamp_ = 1;
};

}  // namespace quenda

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quenda {

/// The file system as the tool sees it. Paths are the tool's own texts (Windows-1252, backslashes);
/// contents are bytes. What is not said to be a result value fails with a RuntimeFault: 53 no such
/// file, 76 no such folder, 70 in use or not permitted, 75 read-only or a folder, 61 disk full, 57
/// any other trouble of the device.
class Files {
 public:
  virtual ~Files() = default;

  /// Whether a file (not a folder) of that path is there.
  [[nodiscard]] virtual bool exists(std::string_view path) const = 0;
  /// Bytes of the file; 0 when there is none.
  [[nodiscard]] virtual std::uint64_t size(std::string_view path) const = 0;
  /// A number that changes whenever the file does (from size and time of writing); 0 for no file.
  [[nodiscard]] virtual std::uint64_t stamp(std::string_view path) const = 0;
  /// The whole content.
  [[nodiscard]] virtual std::string read(std::string_view path) const = 0;
  /// Creates the file or replaces its content.
  virtual void write(std::string_view path, std::string_view content) = 0;
  /// Adds to the end of the file, which is created when missing.
  virtual void append(std::string_view path, std::string_view content) = 0;
  /// Replaces everything from byte `keep` on by `tail`, in place, and has the data on the disk when
  /// it returns. Space for a longer file is taken before anything is overwritten, so that a full
  /// disk (61) leaves the old content as it was; a shorter file is cut last. A missing file is
  /// created. While this runs, other programs are kept from writing to the file. Fault 5, and
  /// nothing is changed, when the file has fewer than `keep` bytes.
  virtual void replace_tail(std::string_view path, std::uint64_t keep, std::string_view tail) = 0;
  /// Deletes the file; a missing or protected file is left without a word.
  virtual void remove(std::string_view path) noexcept = 0;
};

}  // namespace quenda

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/files.h"

// The order in which the end of a file is replaced, the same on every system.
namespace quenda {

/// A file that is open for changing and locked against other writers. What fails is raised as a
/// fault.
class TailFile {
 public:
  virtual ~TailFile() = default;
  [[nodiscard]] virtual std::uint64_t size() const = 0;
  /// Fills the buffer from that position on; fewer bytes only at the end of the file.
  [[nodiscard]] virtual std::size_t read_at(std::uint64_t position,
                                            std::span<char> buffer) const = 0;
  virtual void write_at(std::uint64_t position, std::string_view bytes) = 0;
  virtual void cut(std::uint64_t length) = 0;
  /// Returns when the data is on the disk.
  virtual void flush() = 0;
};

/// Replaces the end of the file as Files::replace_tail promises. The file is there, empty when it
/// has just been created.
[[nodiscard]] ReplaceResult replace_tail_of(TailFile& file, const TailChange& change);

}  // namespace quenda

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "text/tail_text.h"

namespace quenda {

/// What a message says of a file whose change has failed. "%1" and "%2" are filled in.
struct TailTexts {
  std::string_view unchanged;
  std::string_view longer;   // the old lines stand, %1 of them, and new ones behind them
  std::string_view damaged;  // from line %1 on, which begins with "%2"
  std::string_view rest;     // follows `damaged` when the lines lost there stand at the end
  std::string_view large;    // more bytes than can be read again, so nothing was written
};

/// What becomes of the end of a file of lines that was read before.
struct TailChange {
  std::string_view old_text;  // the whole content as it was read; empty for a file to be created
  std::uint64_t keep = 0;     // bytes at the front that stay as they are
  const TailText* tail = nullptr;  // what follows them, where anything does
  TailTexts texts = {};            // in the user's language
  /// Makes lines unreadable for those who know the format, without changing their lengths: in each
  /// line, the first byte that it changes has to do that alone. Null where it does not matter.
  void (*spoil)(std::string& lines) = nullptr;
  /// A file whose rights this one gets before anything is written, where files have rights of their
  /// own; empty for the usual ones. One that is not there counts as none.
  std::string_view rights_of = {};
};

enum class ReplaceResult { kReplaced, kChangedMeanwhile };

/// Something is kept from others as long as it lives.
class FileLock {
 public:
  virtual ~FileLock() = default;
};

/// Bytes that a file may have to be read.
inline constexpr std::uint64_t kLargestFile = (1ULL << 31U) - 1;

/// Fault 7 for a file with more bytes.
void check_size(std::uint64_t bytes);

/// The file system as the tool sees it. Paths are the tool's own texts (Windows-1252, backslashes);
/// contents are bytes. What is not said to be a result value fails with a RuntimeFault: 53 no such
/// file, 76 no such folder, 70 in use or not permitted, 75 read-only or no file to work on, 61 disk
/// full, 57 any other trouble of the device.
class Files {
 public:
  virtual ~Files() = default;

  /// Whether the attributes of a file (not a folder) of that path can be read. Where something is
  /// written when there is no file, has_file is to be asked: what cannot be looked at for a moment
  /// would be taken for missing, and be overwritten.
  [[nodiscard]] virtual bool exists(std::string_view path) const = 0;
  /// Whether a file is there; false only when the system says that nothing is. Anything else is a
  /// fault: 75 for what can be no file to read and to change (a folder, a pipe, a device, a link to
  /// nothing), else the one that fits why the system cannot tell.
  [[nodiscard]] virtual bool has_file(std::string_view path) const = 0;
  /// Whether a folder of that path is there.
  [[nodiscard]] virtual bool has_folder(std::string_view path) const = 0;
  /// Bytes of the file; 0 when there is none.
  [[nodiscard]] virtual std::uint64_t size(std::string_view path) const = 0;
  /// A number that changes whenever the file does (from size and time of writing); 0 for no file.
  [[nodiscard]] virtual std::uint64_t stamp(std::string_view path) const = 0;
  /// The whole content; fault 7 for more than 2 GB.
  [[nodiscard]] virtual std::string read(std::string_view path) const = 0;
  /// Creates the file or replaces its content.
  virtual void write(std::string_view path, std::string_view content) = 0;
  /// Adds to the end of the file, which is created when missing. Fault 75 where the path is a link:
  /// logs are written so, and nobody shall lead them into another file.
  virtual void append(std::string_view path, std::string_view content) = 0;
  /// Replaces everything from byte `keep` on, in place, and has the data on the disk when it
  /// returns. While this runs, other programs are kept from writing to the file. Nothing is done
  /// when the file no longer holds what was read (kChangedMeanwhile), or is gone (53). A file that
  /// was not there is created. Fault 7 for what would become too large to be read. After a fault
  /// the old content stands again, or the fault's addition says what could not be put back. Fault 5
  /// when `keep` is beyond the old text.
  [[nodiscard]] virtual ReplaceResult replace_tail(std::string_view path,
                                                   const TailChange& change) = 0;
  /// Keeps other runs of this program from the same until the result goes; waits for one that is at
  /// it. Null when the other one is not done in that time. No file is created for it.
  [[nodiscard]] virtual std::unique_ptr<FileLock> lock(std::string_view path,
                                                       std::uint32_t milliseconds) = 0;
  /// Whether two paths lead to one file that is there, by whatever names.
  [[nodiscard]] virtual bool same_file(std::string_view a, std::string_view b) const = 0;
  /// Whether a file could be written there, or written anew. Nothing is changed to find out.
  [[nodiscard]] virtual bool can_write(std::string_view path) const = 0;
  /// Creates a folder in one that is there; one of that name that exists already will do.
  virtual void make_folder(std::string_view path) = 0;
  /// Deletes the file; a missing or protected file is left without a word.
  virtual void remove(std::string_view path) noexcept = 0;
};

}  // namespace quenda

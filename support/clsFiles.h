#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quenda {

class Clock;
class clsErrorHandling;
class Files;

/// Whole files as texts, and logs that are kept at a size.
class clsFiles {
 public:
  clsFiles(clsErrorHandling& errors, Files& files, const Clock& clock)
      : errors_(errors), files_(files), clock_(clock) {}

  /// Adds a line with date and time to a log. A log larger than `maximum` kilobytes of 1024 first
  /// loses its oldest lines, down to three quarters of that; a maximum of 0 never trims.
  void FileWrite_Log(std::string_view path, std::string_view text, std::int32_t maximum);

  /// The content of a file, empty when it is missing or empty. `count` is the number of its lines
  /// where they end in CR LF; a file with LF line ends gets half its line ends and one more.
  std::string fOpenFileToStream(std::string_view path, long& count);

  /// Writes the text and CR LF, at the end of the file or in place of its content. False when that
  /// failed; the fault has been reported then.
  bool MakeFile(std::string_view path, std::string_view text, bool append);

  [[nodiscard]] bool FileExist(std::string_view path);
  /// A file that cannot be deleted stays.
  void FileDelete(std::string_view path);

 private:
  clsErrorHandling& errors_;
  Files& files_;
  const Clock& clock_;
};

/// The lines of a text by the rule of `fOpenFileToStream`.
long line_count(std::string_view text);

}  // namespace quenda

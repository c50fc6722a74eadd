#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/handles.h"
#include "tools/driver/temp_folder.h"

namespace quenda {

/// A running program; ended with its owner when it has not ended by itself.
class Process {
 public:
  Process() = default;
  /// Starts a program. The whole command line, the program's path in quotes; what it prints goes
  /// into the file, where one is named.
  explicit Process(const std::string& command_line, const std::string& output = {});
  /// One that was started by somebody else.
  static Process of(DWORD id);
  Process(Process&&) = default;
  Process& operator=(Process&&) = default;
  ~Process() { kill(); }

  [[nodiscard]] DWORD id() const { return id_; }
  [[nodiscard]] bool running() const;
  /// Its exit code, once it has ended; nothing when it still runs after half a minute.
  [[nodiscard]] std::optional<DWORD> exit_code() const;
  void kill() const;

 private:
  KernelHandle handle_;
  DWORD id_ = 0;
};

/// The phone book's stand-in as a process, and what it prints.
class PhoneBook {
 public:
  /// Starts the tool of that path unless the options say otherwise.
  PhoneBook(const std::string& tool, std::string_view options);

  /// All lines so far.
  [[nodiscard]] std::vector<std::string> heard() const;
  /// Waits for a line.
  [[nodiscard]] bool hears(std::string_view line) const;
  [[nodiscard]] const Process& process() const { return process_; }

 private:
  TempFolder folder_;
  Process process_;
};

/// The bytes of a file; empty when there is none.
std::string content_of(const std::string& path);

}  // namespace quenda

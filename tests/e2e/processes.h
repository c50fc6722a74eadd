#pragma once

#include <atomic>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/win32/handles.h"

namespace quenda {

/// A running program; ended with its owner when it has not ended by itself.
class Process {
 public:
  Process() = default;
  /// Starts a program. The whole command line, the program's path in quotes.
  explicit Process(const std::string& command_line, HANDLE output = nullptr);
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
  ~PhoneBook();
  PhoneBook(const PhoneBook&) = delete;
  PhoneBook& operator=(const PhoneBook&) = delete;

  /// All lines so far.
  std::vector<std::string> heard();
  /// Waits for a line.
  bool hears(std::string_view line);
  [[nodiscard]] const Process& process() const { return process_; }

 private:
  void read();

  std::atomic<bool> stop_ = false;
  std::mutex mutex_;
  std::string printed_;
  KernelHandle output_;
  Process process_;
  std::thread reader_;
};

}  // namespace quenda

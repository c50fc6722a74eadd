#include "tests/e2e/processes.h"

#include <algorithm>
#include <array>

#include "platform/win32/text_win32.h"
#include "support/text.h"
#include "tests/e2e/driver_window.h"

namespace quenda {
namespace {

constexpr DWORD kEndTime = 30'000;  // milliseconds
constexpr UINT kKilled = 99;

/// A pipe whose writing end programs inherit.
struct Pipe {
  Pipe() {
    SECURITY_ATTRIBUTES inherited{};
    inherited.nLength = sizeof inherited;
    inherited.bInheritHandle = TRUE;
    HANDLE from = nullptr;
    HANDLE to = nullptr;
    CreatePipe(&from, &to, &inherited, 0);
    SetHandleInformation(from, HANDLE_FLAG_INHERIT, 0);
    reading.reset(from);
    writing.reset(to);
  }
  KernelHandle reading;
  KernelHandle writing;
};

}  // namespace

Process::Process(const std::string& command_line, HANDLE output) {
  std::wstring line = wide(command_line);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  if (output != nullptr) {
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output;
    start.hStdError = output;
  }
  PROCESS_INFORMATION made{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, output != nullptr ? TRUE : FALSE, 0,
                     nullptr, nullptr, &start, &made) == 0) {
    return;
  }
  CloseHandle(made.hThread);
  handle_.reset(made.hProcess);
  id_ = made.dwProcessId;
}

Process Process::of(DWORD id) {
  Process process;
  process.handle_.reset(
      OpenProcess(SYNCHRONIZE | PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION, FALSE, id));
  process.id_ = id;
  return process;
}

bool Process::running() const {
  return handle_ && WaitForSingleObject(handle_.get(), 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> Process::exit_code() const {
  DWORD code = 0;
  if (!handle_ || WaitForSingleObject(handle_.get(), kEndTime) != WAIT_OBJECT_0) return {};
  if (GetExitCodeProcess(handle_.get(), &code) == 0) return {};
  return code;
}

void Process::kill() const {
  if (!running()) return;
  TerminateProcess(handle_.get(), kKilled);
  WaitForSingleObject(handle_.get(), kEndTime);
}

PhoneBook::PhoneBook(const std::string& tool, std::string_view options) {
  Pipe pipe;
  process_ = Process(concat("\"", QUENDA_STANDIN_EXE, "\" --exe \"", tool, "\" ", options),
                     pipe.writing.get());
  output_ = std::move(pipe.reading);
  reader_ = std::thread([this] { read(); });
}

PhoneBook::~PhoneBook() {
  process_.kill();
  stop_ = true;
  reader_.join();
}

void PhoneBook::read() {
  // The end of the pipe tells nothing: programs of the system that were started on the way can hold
  // its other end for as long as they run.
  constexpr DWORD kPollInterval = 10;  // milliseconds
  std::array<char, 256> bytes{};
  while (!stop_) {
    DWORD waiting = 0;
    if (PeekNamedPipe(output_.get(), nullptr, 0, nullptr, &waiting, nullptr) == 0) return;
    if (waiting == 0) {
      Sleep(kPollInterval);
      continue;
    }
    DWORD count = 0;
    if (ReadFile(output_.get(), bytes.data(), bytes.size(), &count, nullptr) == 0) return;
    const std::lock_guard lock(mutex_);
    printed_.append(bytes.data(), count);
  }
}

std::vector<std::string> PhoneBook::heard() {
  const std::lock_guard lock(mutex_);
  std::vector<std::string> lines;
  std::string line;
  for (const char c : printed_) {
    if (c == '\n') {
      lines.push_back(std::exchange(line, {}));
    } else if (c != '\r') {
      line += c;
    }
  }
  return lines;
}

bool PhoneBook::hears(std::string_view line) {
  return becomes([&] {
    const auto lines = heard();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  });
}

}  // namespace quenda

#include "tools/driver/processes.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "platform/win32/text_win32.h"
#include "text/text.h"
#include "tools/driver/driver_window.h"

namespace quenda {
namespace {

constexpr DWORD kEndTime = 30'000;  // milliseconds
constexpr UINT kKilled = 99;

}  // namespace

std::string content_of(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

Process::Process(const std::string& command_line, const std::string& output) {
  std::wstring line = wide(command_line);
  SECURITY_ATTRIBUTES inherited{};
  inherited.nLength = sizeof inherited;
  inherited.bInheritHandle = TRUE;
  FileHandle file;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  if (!output.empty()) {
    file.reset(CreateFileW(wide(output).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                           &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = file.get();
    start.hStdError = file.get();
  }
  PROCESS_INFORMATION made{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, file ? TRUE : FALSE, 0, nullptr,
                     nullptr, &start, &made) == 0) {
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

PhoneBook::PhoneBook(const std::string& tool, std::string_view options)
    : process_(concat("\"", QUENDA_STANDIN_EXE, "\" --exe \"", tool, "\" ", options),
               folder_.path("heard.txt")) {}

std::vector<std::string> PhoneBook::heard() const {
  const std::string text = replace_all(content_of(folder_.path("heard.txt")), "\r\n", "\n");
  std::vector<std::string> lines;
  for (const std::string_view line : split(text, "\n")) lines.emplace_back(line);
  lines.pop_back();  // one that has not ended yet, or nothing
  return lines;
}

bool PhoneBook::hears(std::string_view line) const {
  return becomes([&] {
    const auto lines = heard();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  });
}

}  // namespace quenda

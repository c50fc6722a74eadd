// Plays the phone book: starts the import tool as the phone book's menu does, listens to it, and
// prints every text as it comes, "closed" when the conversation ends and "exit N" when the tool
// has ended with N.
#include "platform/win32/windows_headers.h"
// shellapi.h needs windows.h first.
#include <shellapi.h>

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "tools/phonebook_link.h"

namespace quenda {
namespace {

constexpr ULONGLONG kConnectTime = 30'000;  // milliseconds for the tool to come up
constexpr DWORD kLookInterval = 100;        // milliseconds between two looks at the tool
constexpr UINT kKilled = 9;
constexpr int kNoLink = 1;
constexpr int kWrongUse = 2;

struct Options {
  std::wstring exe = L"Import.exe";
  ULONGLONG seconds = 24ULL * 60 * 60;
  bool start = true;
  bool hang = false;
  std::optional<std::string> die_after;
};

constexpr const char* kUsage =
    "phonebook_standin [--exe PATH] [--seconds N] [--no-start] [--die-after TEXT] [--hang]\n"
    "  --exe PATH        the import tool, Import.exe unless given\n"
    "  --seconds N       leaves after that time\n"
    "  --no-start        links to a tool that already runs\n"
    "  --die-after TEXT  ends without a goodbye once it has heard the text\n"
    "  --hang            links and never answers again\n";

void say(const std::string& line) {
  std::puts(line.c_str());
  std::fflush(stdout);
}

std::optional<Options> read_options() {
  Options options;
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; i < count; ++i) {
    const std::wstring_view word = words[i];
    const bool has_value = i + 1 < count;
    if (word == L"--no-start") {
      options.start = false;
    } else if (word == L"--hang") {
      options.hang = true;
    } else if (word == L"--exe" && has_value) {
      options.exe = words[++i];
    } else if (word == L"--seconds" && has_value) {
      options.seconds = std::wcstoul(words[++i], nullptr, 10);
    } else if (word == L"--die-after" && has_value) {
      options.die_after = nearest_1252(words[++i]);
    } else {
      return std::nullopt;
    }
  }
  LocalFree(static_cast<HLOCAL>(words));
  return options;
}

KernelHandle start_tool(const std::wstring& exe) {
  std::wstring line = L"\"" + exe + L"\" /i";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION made{};
  if (CreateProcessW(exe.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &made) == 0) {
    return {};
  }
  CloseHandle(made.hThread);
  return KernelHandle(made.hProcess);
}

/// The name under which the tool answers: that of its executable.
std::wstring service_of(std::wstring_view exe) {
  exe.remove_prefix(exe.find_last_of(L"\\/") + 1);
  return std::wstring(exe.substr(0, exe.rfind(L'.')));
}

bool ended(const KernelHandle& tool) {
  return tool && WaitForSingleObject(tool.get(), 0) == WAIT_OBJECT_0;
}

/// Handles what has come, after waiting for it for a moment.
void listen(const KernelHandle& tool) {
  const HANDLE handle = tool.get();
  MsgWaitForMultipleObjects(tool ? 1 : 0, &handle, FALSE, kLookInterval, QS_ALLINPUT);
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
}

int run(const Options& options) {
  const KernelHandle tool = options.start ? start_tool(options.exe) : KernelHandle();
  if (options.start && !tool) {
    std::fputs("phonebook_standin: the tool does not start\n", stderr);
    return kNoLink;
  }
  PhonebookLink link([&](const std::string& text) {
    say(text);
    if (text == options.die_after) TerminateProcess(GetCurrentProcess(), kKilled);
  });
  const std::wstring service = service_of(options.exe);
  const ULONGLONG begin = GetTickCount64();
  bool linked = link.connect(service);
  while (!linked && !ended(tool) && GetTickCount64() - begin < kConnectTime) {
    listen(tool);
    linked = link.connect(service);
  }
  const ULONGLONG end = begin + options.seconds * 1000;
  if (linked && options.hang) {
    Sleep(static_cast<DWORD>(options.seconds * 1000));
  }
  while (link.open() && !ended(tool) && GetTickCount64() < end) listen(tool);
  // What was posted right before the end is still on its way.
  listen(KernelHandle());
  if (linked && !(link.open() && !ended(tool))) say("closed");
  while (tool && !ended(tool) && GetTickCount64() < end) listen(tool);
  DWORD code = 0;
  if (ended(tool) && GetExitCodeProcess(tool.get(), &code) != 0)
    say("exit " + std::to_string(code));
  if (!linked) std::fputs("phonebook_standin: no link\n", stderr);
  return linked ? 0 : kNoLink;
}

}  // namespace
}  // namespace quenda

int main() {
  const auto options = quenda::read_options();
  if (!options) {
    std::fputs(quenda::kUsage, stderr);
    return quenda::kWrongUse;
  }
  return quenda::run(*options);
}

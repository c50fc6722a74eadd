// Measures the start of the tool's window against that of an empty window, from outside and in
// turns, so that both see the same state of the machine. Prints medians.
// Usage: window_start EMPTY.exe IMPORT.exe [ROUNDS]; the tool stands in its suite.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/win32/handles.h"
// windows.h has to come first.
#include <psapi.h>

namespace {

using quenda::KernelHandle;

constexpr DWORD kWaitLimit = 20'000;  // milliseconds
constexpr DWORD kSettleTime = 500;    // until what is done behind a visible window is over

struct Program {
  std::string name;
  std::wstring command_line;
  std::wstring title;
};

struct Start {
  double visible = 0;  // milliseconds from the call that starts the program
  double answers = 0;  // until its window handles a message
  double peak = 0;     // working set in megabytes
  double settled = 0;
};

[[noreturn]] void fail(const char* what, const Program& program) {
  std::fprintf(stderr, "window_start: %s: %s\n", program.name.c_str(), what);
  std::exit(1);
}

double milliseconds() {
  LARGE_INTEGER now{};
  LARGE_INTEGER frequency{};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(now.QuadPart) * 1000 / static_cast<double>(frequency.QuadPart);
}

HWND wait_until_visible(const Program& program) {
  const double limit = milliseconds() + kWaitLimit;
  for (;;) {
    const HWND window = FindWindowW(nullptr, program.title.c_str());
    if (window != nullptr && IsWindowVisible(window) != 0) return window;
    if (milliseconds() > limit) fail("no window is to be seen", program);
    Sleep(1);
  }
}

Start measure(const Program& program) {
  std::wstring line = program.command_line;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION made{};
  Start result;
  const double begin = milliseconds();
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &made) == 0) {
    fail("cannot be started", program);
  }
  CloseHandle(made.hThread);
  const KernelHandle process(made.hProcess);
  const HWND window = wait_until_visible(program);
  result.visible = milliseconds() - begin;
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kWaitLimit, &answer);
  result.answers = milliseconds() - begin;
  Sleep(kSettleTime);
  PROCESS_MEMORY_COUNTERS memory{};
  GetProcessMemoryInfo(process.get(), &memory, sizeof memory);
  result.peak = static_cast<double>(memory.PeakWorkingSetSize) / 1e6;
  result.settled = static_cast<double>(memory.WorkingSetSize) / 1e6;
  PostMessageW(window, WM_CLOSE, 0, 0);
  if (WaitForSingleObject(process.get(), kWaitLimit) != WAIT_OBJECT_0) {
    TerminateProcess(process.get(), 1);
    fail("does not end", program);
  }
  return result;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

/// The ratio is that of neighbours: the machine's speed changes, but seldom between two starts.
void print(const char* what, const std::vector<Start> (&starts)[2], double Start::*value,
           const char* wanted) {
  std::vector<double> empty;
  std::vector<double> tool;
  std::vector<double> ratios;
  for (std::size_t i = 0; i < starts[0].size(); ++i) {
    empty.push_back(starts[0][i].*value);
    tool.push_back(starts[1][i].*value);
    ratios.push_back(tool.back() / empty.back());
  }
  std::printf("%-28s %9.1f %9.1f %8.2f   %s\n", what, median(empty), median(tool), median(ratios),
              wanted);
}

std::wstring widened(const char* text) {
  return {text, text + std::char_traits<char>::length(text)};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("usage: window_start EMPTY.exe IMPORT.exe [ROUNDS]\n", stderr);
    return 2;
  }
  const Program programs[2] = {{"empty window", L"\"" + widened(argv[1]) + L"\"", L"Empty window"},
                               {"tool", L"\"" + widened(argv[2]) + L"\" /i", L"Quenda - Import"}};
  const int rounds = argc > 3 ? std::atoi(argv[3]) : 25;
  std::vector<Start> starts[2];
  for (int round = -1; round < rounds; ++round) {
    for (int i = 0; i < 2; ++i) {
      const Start start = measure(programs[i]);
      if (round >= 0) starts[i].push_back(start);  // the first round warms the caches
    }
  }
  std::printf("medians of %-4d starts             empty      tool    ratio\n", rounds);
  print("until visible (ms)", starts, &Start::visible, "wanted: 1.3");
  print("until it answers (ms)", starts, &Start::answers, "");
  print("peak working set (MB)", starts, &Start::peak, "wanted: 2.0");
  print("settled working set (MB)", starts, &Start::settled, "");
  return 0;
}

#include "platform/posix/system_posix.h"

#include <fcntl.h>
#include <unistd.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <array>
#include <chrono>
#include <csignal>
#include <ctime>
#include <limits>

#include "platform/native_services.h"
#include "platform/no_automation.h"
#include "platform/posix/files_posix.h"
#include "text/text.h"

namespace quenda {
namespace {

/// The executable's path as the tool's text; empty when the system does not tell.
std::string executable_path() {
  std::array<char, 4096> buffer{};
  const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
  if (length <= 0) return {};
  return from_utf8({buffer.data(), static_cast<std::size_t>(length)}).value_or(std::string());
}

std::string two_digits(int value) {
  const std::string digits = std::to_string(value);
  return digits.size() < 2 ? "0" + digits : digits;
}

}  // namespace

LocalTime PosixClock::now() const {
  const std::time_t seconds = std::time(nullptr);
  std::tm parts{};
  ::localtime_r(&seconds, &parts);
  constexpr int kYearBase = 1900;
  return {parts.tm_year + kYearBase,
          parts.tm_mon + 1,
          parts.tm_mday,
          parts.tm_hour,
          parts.tm_min,
          parts.tm_sec};
}

std::uint64_t PosixClock::milliseconds() const {
  const auto elapsed = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(
      std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
}

std::string PosixSystem::special_folder(int number) const {
  switch (number) {
    case kCommonApplicationData:
      return "/var/lib";
    case kProgramFiles:
      return "/opt";
    default:
      return {};
  }
}

std::string PosixSystem::program_folder() const {
  const std::string path = executable_path();
  return path.substr(0, path.rfind('/'));
}

std::string PosixSystem::executable_name() const {
  const std::string path = executable_path();
  return path.substr(path.rfind('/') + 1);
}

std::string PosixSystem::short_date_today() const {
  const LocalTime today = PosixClock().now();
  return concat(two_digits(today.day), ".", two_digits(today.month), ".",
                std::to_string(today.year));
}

int PosixSystem::open_with_shell(std::string_view /*verb*/, std::string_view /*file*/,
                                 std::string_view /*parameters*/, std::string_view /*folder*/) {
  constexpr int kNoAssociation = 31;
  return kNoAssociation;
}

std::unique_ptr<Files> native_files() { return std::make_unique<PosixFiles>(); }
std::unique_ptr<Clock> native_clock() { return std::make_unique<PosixClock>(); }
std::unique_ptr<System> native_system() { return std::make_unique<PosixSystem>(); }
std::unique_ptr<Automation> native_automation() { return std::make_unique<NoAutomation>(); }

void keep_memory() {
#ifdef __GLIBC__
  ::mallopt(M_MMAP_MAX, 0);
  ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
#endif
}

bool console_is_interactive() {
  return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
}
bool console_shows_progress() { return ::isatty(STDERR_FILENO) == 1; }

bool console_shows_results() { return ::isatty(STDOUT_FILENO) == 1; }

std::vector<std::string> console_arguments(int argc, char** argv) {
  // Where a standard stream is closed, the next file that is opened would get its number, and our
  // output with it. What stands in its place can be read only, so that writing to it fails.
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(stream, F_GETFD) < 0) static_cast<void>(::open("/dev/null", O_RDONLY));
  }
  std::signal(SIGPIPE, SIG_IGN);
  return {argv + 1, argv + argc};
}

}  // namespace quenda

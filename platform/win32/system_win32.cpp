#include "platform/win32/system_win32.h"

#include <shellapi.h>
#include <shlobj.h>

#include <array>

#include "platform/win32/com/com_support.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/events_win32.h"

namespace quenda {
namespace {

constexpr const wchar_t* kInstanceName = L"Local\\Quenda.Import";

std::string executable_path() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return usable_path(path).value_or("");
    }
    path.resize(path.size() * 2);
  }
}

std::wstring_view skip_blanks(std::wstring_view text) {
  while (!text.empty() && (text.front() == L' ' || text.front() == L'\t')) text.remove_prefix(1);
  return text;
}

}  // namespace

/// By its path at once: the way over the shell's own lists looks up names and pictures for display,
/// which takes longer than all else that is read at the start.
std::string Win32System::special_folder(int number) const {
  std::array<wchar_t, MAX_PATH + 1> path{};
  if (SHGetFolderPathW(nullptr, number, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK)
    return {};
  std::string folder = usable_path(path.data()).value_or("");
  if (!folder.empty() && folder.back() == '\\') folder.pop_back();
  return folder;
}

std::string Win32System::program_folder() const {
  const std::string path = executable_path();
  const auto slash = path.rfind('\\');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string Win32System::executable_name() const {
  std::string name = executable_path();
  name.erase(0, name.rfind('\\') + 1);
  return name.substr(0, name.rfind('.'));
}

std::string Win32System::command_line() const {
  std::wstring_view line = GetCommandLineW();
  const bool quoted = !line.empty() && line.front() == L'"';
  const auto end = quoted ? line.find(L'"', 1) : line.find_first_of(L" \t");
  if (end == std::wstring_view::npos) return {};
  return nearest_1252(skip_blanks(line.substr(end + (quoted ? 1 : 0))));
}

bool Win32System::previous_instance() const {
  if (instance_) return false;
  instance_.reset(CreateMutexW(nullptr, FALSE, kInstanceName));
  const DWORD outcome = GetLastError();
  // A name that another user's rights protect is taken as well.
  return outcome == ERROR_ALREADY_EXISTS || outcome == ERROR_ACCESS_DENIED;
}

std::string Win32System::long_path(std::string_view path) const {
  const std::wstring given = wide(path);
  // Every call looks into each folder on the way: one has to do where the path is no longer than
  // most.
  std::wstring answer(MAX_PATH, L'\0');
  const auto ask = [&] {
    return GetLongPathNameW(given.c_str(), answer.data(), static_cast<DWORD>(answer.size()));
  };
  DWORD length = ask();
  if (length > answer.size()) {
    answer.resize(length);
    length = ask();
  }
  answer.resize(length);
  return answer.empty() ? std::string(path) : exact_1252(answer).value_or(std::string(path));
}

std::string Win32System::short_date_today() const {
  std::array<wchar_t, 80> date{};
  GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date.data(),
                  static_cast<int>(date.size()), nullptr);
  return nearest_1252(date.data());
}

int Win32System::open_with_shell(std::string_view verb, std::string_view file,
                                 std::string_view parameters, std::string_view folder) {
  const ApartmentScope apartment;
  const HINSTANCE result =
      ShellExecuteW(GetActiveWindow(), wide(verb).c_str(), wide(file).c_str(),
                    wide(parameters).c_str(), wide(folder).c_str(), SW_SHOWNORMAL);
  return static_cast<int>(as_lparam(result));
}

}  // namespace quenda

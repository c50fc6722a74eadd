#include "tools/outlook/outlook_standin.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "text/text.h"
#include "tools/driver/driver_window.h"
#include "tools/driver/processes.h"
// windows.h has to come first.
#include <objbase.h>

namespace quenda {
namespace {

constexpr const wchar_t* kProgramKey = L"Software\\Classes\\Outlook.Application";
constexpr int kRunTime = 60;  // seconds

void set_key(const std::wstring& key, const std::wstring& value) {
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, value.c_str(),
                  static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

/// A class of its own for every run: one whose program was killed stays taken.
std::wstring new_class_id() {
  GUID id{};
  CoCreateGuid(&id);
  std::array<wchar_t, 40> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

}  // namespace

bool may_register_programs() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

OutlookStandIn::OutlookStandIn(std::string_view script) {
  std::ofstream(folder_.path("script.txt"), std::ios::binary)
      << script << "\nreport=" << folder_.path("report.txt") << '\n';
  const std::wstring class_id = new_class_id();
  class_key_ = L"Software\\Classes\\CLSID\\" + class_id;
  set_key(std::wstring(kProgramKey) + L"\\CLSID", class_id);
  set_key(class_key_ + L"\\LocalServer32",
          L"\"" + std::filesystem::absolute(QUENDA_OUTLOOK_SERVER_EXE).wstring() + L"\" \"" +
              wide(folder_.path("script.txt")) + L"\" " + class_id);
}

OutlookStandIn::~OutlookStandIn() {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kProgramKey);
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, class_key_.c_str());
}

std::string OutlookStandIn::reports() const { return content_of(folder_.path("report.txt")); }

std::vector<long> OutlookStandIn::counted(std::string_view what) const {
  becomes([&] { return reports().find('\n') != std::string::npos; }, 25);
  const std::string text = reports();
  const std::string name = concat(what, "=");
  std::vector<long> numbers;
  for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
    numbers.push_back(std::stol(text.substr(at + name.size())));
  }
  return numbers;
}

ConsoleRun run_console_tool(std::string_view options) {
  const TempFolder folder;
  const std::string output = folder.path("output.txt");
  const Process tool(concat("\"", QUENDA_BATCH_EXE, "\" ", options), output);
  becomes([&] { return !tool.running(); }, kRunTime);
  const DWORD exit_code = tool.exit_code().value_or(STILL_ACTIVE);
  return {exit_code, content_of(output)};
}

}  // namespace quenda

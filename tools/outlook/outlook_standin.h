#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/driver/temp_folder.h"

namespace quenda {

/// Whether programs may be registered here: only in Wine, whose registry belongs to the tests. A
/// real Outlook must never be pushed aside.
bool may_register_programs();

/// An Outlook on this machine for as long as it lives: the stand-in, started by the system when
/// somebody asks for Outlook. `script` tells what it does (see outlook_script.h).
class OutlookStandIn {
 public:
  explicit OutlookStandIn(std::string_view script);
  ~OutlookStandIn();
  OutlookStandIn(const OutlookStandIn&) = delete;
  OutlookStandIn& operator=(const OutlookStandIn&) = delete;

  /// What the stand-in counted up to its end, such as "live" or "lookups", one number for each time
  /// that it ran; waits for the first of them.
  [[nodiscard]] std::vector<long> counted(std::string_view what) const;

 private:
  [[nodiscard]] std::string reports() const;

  TempFolder folder_;
  std::wstring class_key_;
};

/// What a console program left behind.
struct ConsoleRun {
  unsigned long exit_code = 0;
  std::string output;  // both streams
};

/// Runs the console tool to its end; `options` follow the program's path.
ConsoleRun run_console_tool(std::string_view options);

}  // namespace quenda

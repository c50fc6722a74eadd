#pragma once

#include <string>
#include <string_view>

namespace quenda::modAPI_GetOSSystem {

/// The name of a Windows version by its numbers ("Windows 10" for 10.0 below build 22000).
/// Other programs of the suite use it; this one does not.
std::string version_text(int major, int minor, int build);

}  // namespace quenda::modAPI_GetOSSystem

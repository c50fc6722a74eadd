#include "support/modAPI_GetOSSystem.h"

#include "text/text.h"

namespace quenda::modAPI_GetOSSystem {

std::string version_text(int major, int minor, int build) {
  constexpr int kFirstBuildOf11 = 22000;
  if (major == 10 && minor == 0) return build < kFirstBuildOf11 ? "Windows 10" : "Windows 11";
  if (major == 6 && minor == 3) return "Windows 8.1";
  if (major == 6 && minor == 2) return "Windows 8";
  if (major == 6 && minor == 1) return "Windows 7";
  return concat("Windows ", std::to_string(major), ".", std::to_string(minor));
}

}  // namespace quenda::modAPI_GetOSSystem

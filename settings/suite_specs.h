#pragma once

#include <cstdint>
#include <string_view>

namespace quenda {

class clsErrorHandling;
class modAPI_INI;
struct ErrorEnvironment;

/// The diagnostic switches that all programs of the suite share. The log modes, the CAPI switches
/// and the masks serve other programs; this one reads them along.
struct SuiteSpecs {
  bool LogExport = false;
  bool LogCAPI = false;
  bool LogAVM = false;
  bool LogNCID = false;
  bool LogTAPI = false;
  bool LogOther = false;
  bool TraceMode = false;
  bool LogTiming = false;

  bool ModeExport = true;
  bool ModeMail = true;
  bool ModeInverse = true;
  bool ModeUpdate = true;
  bool ModeSend2Script = true;
  bool ModeNTService = true;

  bool LoadThisValues = false;
  bool SkipVersionAndManufact = false;
  std::uint16_t info_mask = 0;  // one bit per key, in the order of the keys
  std::uint32_t cip_mask = 0;

  friend bool operator==(const SuiteSpecs&, const SuiteSpecs&) = default;
};

/// Reads the switches from the program folder; a missing file leaves them as they are. After a
/// fault the user sees a box, what was read stays, and the result is false.
bool LoadSpecs(clsErrorHandling& errors, modAPI_INI& ini, std::string_view program_folder,
               SuiteSpecs& specs);

/// Hands the trace mode and the debug channels to the error service.
void apply_switches(const SuiteSpecs& specs, ErrorEnvironment& environment);

}  // namespace quenda

#include "settings/suite_specs.h"

#include <array>
#include <cstddef>
#include <string>

#include "settings/modAPI_INI.h"
#include "support/procedure.h"
#include "text/text.h"

namespace quenda {
namespace {

struct Switch {
  std::string_view section;
  std::string_view key;
  bool SuiteSpecs::*field;
  bool standard;
};

constexpr std::array kSwitches = {
    Switch{"Debug", "LogExport", &SuiteSpecs::LogExport, false},
    Switch{"Debug", "LogCAPI", &SuiteSpecs::LogCAPI, false},
    Switch{"Debug", "LogAVM", &SuiteSpecs::LogAVM, false},
    Switch{"Debug", "LogNCID", &SuiteSpecs::LogNCID, false},
    Switch{"Debug", "LogTAPI", &SuiteSpecs::LogTAPI, false},
    Switch{"Debug", "LogOther", &SuiteSpecs::LogOther, false},
    Switch{"Debug", "TraceMode", &SuiteSpecs::TraceMode, false},
    Switch{"Debug", "LogTiming", &SuiteSpecs::LogTiming, false},
    Switch{"LogMode", "Export", &SuiteSpecs::ModeExport, true},
    Switch{"LogMode", "Mail", &SuiteSpecs::ModeMail, true},
    Switch{"LogMode", "Inverse", &SuiteSpecs::ModeInverse, true},
    Switch{"LogMode", "Update", &SuiteSpecs::ModeUpdate, true},
    Switch{"LogMode", "Send2Script", &SuiteSpecs::ModeSend2Script, true},
    Switch{"LogMode", "NTService", &SuiteSpecs::ModeNTService, true},
    Switch{"CAPI", "LoadThisValues", &SuiteSpecs::LoadThisValues, false},
    Switch{"CAPI", "SkipVersionAndManufact", &SuiteSpecs::SkipVersionAndManufact, false},
};

constexpr std::array<std::string_view, 12> kInfoMaskKeys = {
    "InfoMask_CAUSE",           "InfoMask_DATETIME",     "InfoMask_DISPLAY",
    "InfoMask_USERUSER",        "InfoMask_CALLPROGRESS", "InfoMask_FACILITY",
    "InfoMask_CHARGING",        "InfoMask_CALLEDPARTY",  "InfoMask_CHANNEL",
    "InfoMask_EARLYB3CONNECT ",  // the blank belongs to the key
    "InfoMask_REDIRECT",        "InfoMask_SENDCOMPLET",
};

constexpr std::array<std::string_view, 11> kCipMaskKeys = {
    "CIPMask_ANYMATCH",
    "CIPMask_SPEECH",
    "CIPMask_UNRESTRICTEDDIGITAL",
    "CIPMask_RESTRICTEDDIGITAL",
    "CIPMask_31KHZAUDIO",
    "CIPMask_7KHZAUDIO",
    "CIPMask_VIDEO",
    "CIPMask_PACKETMODE",
    "CIPMask_56KBIT",
    "CIPMask_UNRESTRICTEDDIGITAL2",
    "CIPMask_TELEPHONY",
};

template <std::size_t Size>
std::uint32_t read_mask(modAPI_INI& ini, const std::array<std::string_view, Size>& keys,
                        std::string_view file) {
  std::uint32_t mask = 0;
  for (std::size_t i = 0; i < Size; ++i) {
    if (ini.GetSettBool("CAPI", keys[i], false, file)) mask |= 1U << i;
  }
  return mask;
}

}  // namespace

bool LoadSpecs(clsErrorHandling& errors, modAPI_INI& ini, std::string_view program_folder,
               SuiteSpecs& specs) {
  return procedure_with_own_report(
      errors, "suite_specs.LoadSpecs", {},
      [&](Statement& at) {
        at(1);
        const std::string file = concat(program_folder, "\\Quendaspec.ini");
        if (!ini.HasFile(file)) return;
        at(2);
        for (const Switch& entry : kSwitches) {
          const bool forced = entry.field == &SuiteSpecs::ModeExport && specs.LogExport;
          specs.*entry.field =
              forced || ini.GetSettBool(entry.section, entry.key, entry.standard, file);
        }
        if (!specs.LoadThisValues) return;
        at(3);
        specs.info_mask = static_cast<std::uint16_t>(read_mask(ini, kInfoMaskKeys, file));
        at(4);
        specs.cip_mask = read_mask(ini, kCipMaskKeys, file);
      },
      [&](const RuntimeFault& /*fault*/, int statement) {
        errors.show(concat("Error in Function \"LoadSpecs\" at Line ", std::to_string(statement)),
                    MessageStyle::kCritical, "");
      });
}

void apply_switches(const SuiteSpecs& specs, ErrorEnvironment& environment) {
  environment.trace_mode = specs.TraceMode;
  environment.LogExport = specs.LogExport;
  environment.LogCAPI = specs.LogCAPI;
  environment.LogAVM = specs.LogAVM;
  environment.LogNCID = specs.LogNCID;
  environment.LogTAPI = specs.LogTAPI;
  environment.LogOther = specs.LogOther;
  environment.LogTiming = specs.LogTiming;
}

}  // namespace quenda

#pragma once

#include "platform/automation.h"
#include "text/fault.h"

namespace quenda {

/// For systems on which no program can be automated: every attempt ends with fault 429.
class NoAutomation final : public Automation {
 public:
  std::unique_ptr<AutomationObject> create(std::string_view /*program_id*/) override {
    raise_fault(kFaultNoComponent);
  }
};

}  // namespace quenda

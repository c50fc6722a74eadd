#pragma once

#include <functional>
#include <memory>

#include "platform/automation.h"

namespace quenda {

struct AutomationContext;

/// Programs of this machine, driven late bound: by the names of their members alone. The identifier
/// of a name is asked for once per type of object. A program that is busy is asked again for some
/// seconds, during which `pump` runs.
class ComAutomation : public Automation {
 public:
  explicit ComAutomation(std::function<void()> pump) : pump_(std::move(pump)) {}
  std::unique_ptr<AutomationObject> create(std::string_view program_id) override;

 private:
  std::function<void()> pump_;
  std::shared_ptr<AutomationContext> context_;
};

}  // namespace quenda

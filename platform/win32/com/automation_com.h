#pragma once

#include <functional>
#include <memory>

#include "platform/automation.h"

namespace quenda {

class CallThread;

/// Programs of this machine, driven late bound: by the names of their members alone. The identifier
/// of a name is asked for once per type of object. A program that is busy is asked again for some
/// seconds. Calls are made by a thread of their own; while a caller waits, `pump` runs on the
/// caller's thread, and what it raises ends the wait.
class ComAutomation : public Automation {
 public:
  explicit ComAutomation(std::function<void()> pump) : pump_(std::move(pump)) {}
  std::unique_ptr<AutomationObject> create(std::string_view program_id) override;

 private:
  std::function<void()> pump_;
  std::shared_ptr<CallThread> thread_;  // from the first call on
};

}  // namespace quenda

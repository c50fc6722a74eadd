#include "tests/shared/fakes.h"

#include "text/fault.h"

namespace quenda {

namespace {

class Dispatch : public AutomationObject {
 public:
  explicit Dispatch(std::shared_ptr<FakeObject> object) : object_(std::move(object)) {}

  std::string text(std::string_view name) override { return member(object_->texts, name); }
  long number(std::string_view name) override { return member(object_->numbers, name); }
  std::unique_ptr<AutomationObject> object(std::string_view name) override {
    return std::make_unique<Dispatch>(member(object_->objects, name));
  }
  std::unique_ptr<AutomationObject> object(std::string_view name, long argument) override {
    const auto& list = member(object_->lists, name);
    const auto position = static_cast<std::size_t>(argument - 1);
    if (position >= list.size()) raise_fault(kFaultAutomation);
    return std::make_unique<Dispatch>(list[position]);
  }
  std::unique_ptr<AutomationObject> object(std::string_view name,
                                           std::string_view argument) override {
    return std::make_unique<Dispatch>(
        member(object_->objects, std::string(name) + "(" + std::string(argument) + ")"));
  }
  std::string type_name() override { return object_->type; }

 private:
  template <class Members>
  const typename Members::mapped_type& member(const Members& members, std::string_view name) const {
    const auto fault = object_->faults.find(name);
    if (fault != object_->faults.end()) raise_fault(fault->second);
    const auto found = members.find(name);
    if (found == members.end()) raise_fault(kFaultNoSuchMember);
    return found->second;
  }

  std::shared_ptr<FakeObject> object_;
};

}  // namespace

std::unique_ptr<AutomationObject> FakeAutomation::create(std::string_view program_id) {
  const auto program = programs.find(program_id);
  if (program == programs.end()) raise_fault(kFaultNoComponent);
  return std::make_unique<Dispatch>(program->second);
}

}  // namespace quenda

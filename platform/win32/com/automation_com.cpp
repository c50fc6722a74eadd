#include "platform/win32/com/automation_com.h"

#include <string>
#include <utility>

#include "platform/win32/com/call_thread.h"
#include "platform/win32/com/com_object.h"
#include "platform/win32/text_win32.h"
#include "text/fault.h"

namespace quenda {
namespace {

std::shared_ptr<ComObject> create_object(const std::string& program_id,
                                         std::function<bool()> gives_up) {
  CLSID class_id{};
  ComPtr<IDispatch> object;
  if (FAILED(CLSIDFromProgID(wide(program_id).c_str(), &class_id))) raise_fault(kFaultNoComponent);
  const auto context = std::make_shared<CallContext>(CallContext{Patience(std::move(gives_up))});
  const HRESULT result = context->patience.with_creation([&] {
    return CoCreateInstance(class_id, nullptr, CLSCTX_LOCAL_SERVER | CLSCTX_INPROC_SERVER,
                            IID_IDispatch, object.out_void());
  });
  if (FAILED(result) || !object) raise_fault(kFaultNoComponent);
  return std::make_shared<ComObject>(context, std::move(object));
}

/// An object that lives on the calling thread, seen from the tool's.
class DistantObject : public AutomationObject {
 public:
  DistantObject(std::shared_ptr<CallThread> thread, std::shared_ptr<ComObject> object)
      : thread_(std::move(thread)), object_(std::move(object)) {}
  DistantObject(const DistantObject&) = delete;
  DistantObject& operator=(const DistantObject&) = delete;
  ~DistantObject() override {
    // It is let go where it lives.
    thread_->post([object = std::move(object_)]() mutable { object.reset(); });
  }

  std::string text(std::string_view name) override {
    return on_thread([name = std::string(name)](ComObject& object) { return object.text(name); });
  }
  long number(std::string_view name) override {
    return on_thread([name = std::string(name)](ComObject& object) { return object.number(name); });
  }
  std::unique_ptr<AutomationObject> object(std::string_view name) override {
    return distant([name = std::string(name)](ComObject& object) { return object.object(name); });
  }
  std::unique_ptr<AutomationObject> object(std::string_view name, long argument) override {
    return distant([name = std::string(name), argument](ComObject& object) {
      return object.object(name, argument);
    });
  }
  std::unique_ptr<AutomationObject> object(std::string_view name,
                                           std::string_view argument) override {
    return distant([name = std::string(name), argument = std::string(argument)](ComObject& object) {
      return object.object(name, argument);
    });
  }
  std::string type_name() override {
    return on_thread([](ComObject& object) { return object.type_name(); });
  }

 private:
  template <class Call>
  std::invoke_result_t<Call, ComObject&> on_thread(Call call) {
    return thread_->run([object = object_, call = std::move(call)] { return call(*object); });
  }
  template <class Call>
  std::unique_ptr<AutomationObject> distant(Call call) {
    return std::make_unique<DistantObject>(thread_,
                                           std::shared_ptr<ComObject>(on_thread(std::move(call))));
  }

  std::shared_ptr<CallThread> thread_;
  std::shared_ptr<ComObject> object_;
};

}  // namespace

std::unique_ptr<AutomationObject> ComAutomation::create(std::string_view program_id) {
  if (!thread_) thread_ = std::make_shared<CallThread>(pump_);
  auto object = thread_->run([id = std::string(program_id), gives_up = thread_->ending()] {
    return create_object(id, gives_up);
  });
  return std::make_unique<DistantObject>(thread_, std::move(object));
}

}  // namespace quenda

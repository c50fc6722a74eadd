#include "platform/win32/com/automation_com.h"

#include <ocidl.h>

#include <map>
#include <string>
#include <utility>

#include "platform/win32/com/busy_filter.h"
#include "platform/win32/com/com_values.h"
#include "platform/win32/text_win32.h"
#include "text/fault.h"

namespace quenda {
namespace {

constexpr DWORD kBusyPause = 50;  // milliseconds
constexpr long kContactClass = 40;
constexpr std::string_view kContactType = "ContactItem";

/// Identifiers of the members of one type of object, by name.
using Members = std::map<std::string, DISPID, std::less<>>;

}  // namespace

/// What all objects share. The apartment goes after the last of them.
struct AutomationContext {
  ApartmentScope apartment;
  BusyFilter filter;
  std::function<void()> pump;
  std::map<std::string, std::shared_ptr<Members>, std::less<>> types;

  /// Makes a call, again while the program called is busy.
  template <class Call>
  HRESULT patiently(Call call) {
    return repeated(call, means_busy, kBusyLimit);
  }

  /// Makes a call again for some milliseconds while its result asks for that.
  template <class Call>
  HRESULT repeated(Call call, bool (*again)(HRESULT), DWORD limit) {
    const ULONGLONG end = GetTickCount64() + limit;
    HRESULT result = call();
    while (again(result) && GetTickCount64() < end) {
      Sleep(kBusyPause);
      if (pump) pump();
      result = call();
    }
    return result;
  }
};

namespace {

[[noreturn]] void raise_result(HRESULT result) {
  const bool unknown = result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND;
  raise_fault(unknown ? kFaultNoSuchMember : kFaultAutomation);
}

/// Details of an exception that the other program reported; they are given back, not used.
struct ExceptionInfo {
  EXCEPINFO info{};
  ExceptionInfo() = default;
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;
  ~ExceptionInfo() {
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrHelpFile);
  }
};

class ComObject : public AutomationObject {
 public:
  ComObject(std::shared_ptr<AutomationContext> context, ComPtr<IDispatch> object)
      : context_(std::move(context)), object_(std::move(object)) {
    if (!object_) raise_fault(kFaultAutomation);
  }

  std::string text(std::string_view name) override {
    Variant value;
    invoke(name, nullptr, value);
    return value.text();
  }

  long number(std::string_view name) override {
    Variant value;
    invoke(name, nullptr, value);
    return value.number();
  }

  std::unique_ptr<AutomationObject> object(std::string_view name) override {
    return object_given(name, nullptr);
  }

  std::unique_ptr<AutomationObject> object(std::string_view name, long argument) override {
    Variant given(argument);
    return object_given(name, given.get());
  }

  std::unique_ptr<AutomationObject> object(std::string_view name,
                                           std::string_view argument) override {
    Variant given(argument);
    return object_given(name, given.get());
  }

  std::string type_name() override {
    std::string name = name_by_type_information();
    if (name.empty()) name = name_by_class_number();
    if (name.empty()) return name;
    // Objects of one type share the identifiers of their members.
    std::shared_ptr<Members>& known = context_->types[name];
    if (!known) known = members_;
    members_ = known;
    return name;
  }

 private:
  std::unique_ptr<AutomationObject> object_given(std::string_view name, VARIANT* argument) {
    Variant value;
    invoke(name, argument, value);
    return std::make_unique<ComObject>(context_, value.object());
  }

  HRESULT find_id(std::string_view name, DISPID& id) {
    const auto known = members_->find(name);
    if (known != members_->end()) {
      id = known->second;
      return S_OK;
    }
    std::wstring asked = wide(name);
    LPOLESTR names = asked.data();
    const HRESULT result = context_->patiently(
        [&] { return object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id); });
    if (SUCCEEDED(result)) members_->emplace(name, id);
    return result;
  }

  HRESULT try_invoke(std::string_view name, VARIANT* argument, Variant& value) {
    const bool known = members_->find(name) != members_->end();
    const HRESULT result = invoke_once(name, argument, value);
    if (!known || result != DISP_E_MEMBERNOTFOUND) return result;
    // Some programs number the members of each object anew.
    members_->erase(members_->find(name));
    return invoke_once(name, argument, value);
  }

  HRESULT invoke_once(std::string_view name, VARIANT* argument, Variant& value) {
    DISPID id = DISPID_UNKNOWN;
    const HRESULT found = find_id(name, id);
    if (FAILED(found)) return found;
    DISPPARAMS arguments{argument, nullptr, argument == nullptr ? 0U : 1U, 0};
    return context_->patiently([&] {
      ExceptionInfo exception;
      UINT wrong = 0;
      return object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT,
                             DISPATCH_METHOD | DISPATCH_PROPERTYGET, &arguments, value.get(),
                             &exception.info, &wrong);
    });
  }

  void invoke(std::string_view name, VARIANT* argument, Variant& value) {
    const HRESULT result = try_invoke(name, argument, value);
    if (FAILED(result)) raise_result(result);
  }

  /// The name that type information carries. The underscore marks the hidden interface of a class
  /// of that name; other interfaces are called something else than their class.
  std::string name_by_type_information() {
    std::string name = name_of_interface();
    if (!name.empty() && name.front() == '_') return name.substr(1);
    std::string class_name = name_of_class();
    return class_name.empty() ? name : class_name;
  }

  std::string name_of_interface() {
    ComPtr<ITypeInfo> type;
    const HRESULT result = context_->patiently(
        [&] { return object_->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.out()); });
    return FAILED(result) ? std::string() : documented_name(type);
  }

  std::string name_of_class() {
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> type;
    HRESULT result = context_->patiently(
        [&] { return object_->QueryInterface(IID_IProvideClassInfo, provider.out_void()); });
    if (FAILED(result)) return {};
    result = context_->patiently([&] { return provider->GetClassInfo(type.out()); });
    return FAILED(result) ? std::string() : documented_name(type);
  }

  std::string documented_name(const ComPtr<ITypeInfo>& type) {
    if (!type) return {};
    Bstr name;
    const HRESULT result = context_->patiently([&] {
      return type->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr);
    });
    return FAILED(result) ? std::string() : name.text();
  }

  /// For programs whose type information does not cross the border between processes.
  std::string name_by_class_number() {
    Variant value;
    const HRESULT result = try_invoke("Class", nullptr, value);
    if (result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND) return {};
    if (FAILED(result)) raise_result(result);
    return value.number() == kContactClass ? std::string(kContactType) : std::string();
  }

  std::shared_ptr<AutomationContext> context_;
  std::shared_ptr<Members> members_ = std::make_shared<Members>();
  ComPtr<IDispatch> object_;
};

}  // namespace

std::unique_ptr<AutomationObject> ComAutomation::create(std::string_view program_id) {
  if (!context_) {
    context_ = std::make_shared<AutomationContext>();
    context_->pump = pump_;
  }
  CLSID class_id{};
  ComPtr<IDispatch> object;
  const std::wstring name = wide(program_id);
  if (FAILED(CLSIDFromProgID(name.c_str(), &class_id))) raise_fault(kFaultNoComponent);
  const auto make = [&] {
    return CoCreateInstance(class_id, nullptr, CLSCTX_LOCAL_SERVER | CLSCTX_INPROC_SERVER,
                            IID_IDispatch, object.out_void());
  };
  const HRESULT result =
      context_->repeated([&] { return context_->patiently(make); }, means_leaving, kLeavingLimit);
  if (FAILED(result) || !object) raise_fault(kFaultNoComponent);
  return std::make_unique<ComObject>(context_, std::move(object));
}

}  // namespace quenda

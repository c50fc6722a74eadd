#include "platform/win32/com/com_object.h"

#include <ocidl.h>

#include <utility>

#include "platform/win32/com/com_values.h"
#include "platform/win32/text_win32.h"
#include "text/fault.h"

namespace quenda {
namespace {

constexpr long kContactClass = 40;
constexpr std::string_view kContactType = "ContactItem";

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

}  // namespace

ComObject::ComObject(std::shared_ptr<CallContext> context, ComPtr<IDispatch> object)
    : context_(std::move(context)), object_(std::move(object)) {
  if (!object_) raise_fault(kFaultAutomation);
}

std::string ComObject::text(const std::string& name) {
  Variant value;
  invoke(name, nullptr, value);
  return value.text();
}

long ComObject::number(const std::string& name) {
  Variant value;
  invoke(name, nullptr, value);
  return value.number();
}

std::unique_ptr<ComObject> ComObject::object(const std::string& name) {
  return object_given(name, nullptr);
}

std::unique_ptr<ComObject> ComObject::object(const std::string& name, long argument) {
  Variant given(argument);
  return object_given(name, given.get());
}

std::unique_ptr<ComObject> ComObject::object(const std::string& name, const std::string& argument) {
  Variant given(argument);
  return object_given(name, given.get());
}

std::string ComObject::type_name() {
  std::string name = name_by_type_information();
  if (name.empty()) name = name_by_class_number();
  if (name.empty()) return name;
  // Objects of one type share the identifiers of their members.
  std::shared_ptr<Members>& known = context_->types[name];
  if (!known) known = members_;
  members_ = known;
  return name;
}

std::unique_ptr<ComObject> ComObject::object_given(const std::string& name, VARIANT* argument) {
  Variant value;
  invoke(name, argument, value);
  return std::make_unique<ComObject>(context_, value.object());
}

HRESULT ComObject::find_id(const std::string& name, DISPID& id) {
  const auto known = members_->find(name);
  if (known != members_->end()) {
    id = known->second;
    return S_OK;
  }
  std::wstring asked = wide(name);
  LPOLESTR names = asked.data();
  const HRESULT result = context_->patience.with(
      [&] { return object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id); });
  if (SUCCEEDED(result)) members_->emplace(name, id);
  return result;
}

HRESULT ComObject::try_invoke(const std::string& name, VARIANT* argument, Variant& value) {
  const bool known = members_->find(name) != members_->end();
  const HRESULT result = invoke_once(name, argument, value);
  if (!known || result != DISP_E_MEMBERNOTFOUND) return result;
  // Some programs number the members of each object anew.
  members_->erase(members_->find(name));
  return invoke_once(name, argument, value);
}

HRESULT ComObject::invoke_once(const std::string& name, VARIANT* argument, Variant& value) {
  DISPID id = DISPID_UNKNOWN;
  const HRESULT found = find_id(name, id);
  if (FAILED(found)) return found;
  DISPPARAMS arguments{argument, nullptr, argument == nullptr ? 0U : 1U, 0};
  return context_->patience.with([&] {
    ExceptionInfo exception;
    UINT wrong = 0;
    return object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT,
                           DISPATCH_METHOD | DISPATCH_PROPERTYGET, &arguments, value.get(),
                           &exception.info, &wrong);
  });
}

void ComObject::invoke(const std::string& name, VARIANT* argument, Variant& value) {
  const HRESULT result = try_invoke(name, argument, value);
  if (FAILED(result)) raise_result(result);
}

/// The name that type information carries. The underscore marks the hidden interface of a class
/// of that name; other interfaces are called something else than their class.
std::string ComObject::name_by_type_information() {
  std::string name = name_of_interface();
  if (!name.empty() && name.front() == '_') return name.substr(1);
  std::string class_name = name_of_class();
  return class_name.empty() ? name : class_name;
}

std::string ComObject::name_of_interface() {
  ComPtr<ITypeInfo> type;
  const HRESULT result = context_->patience.with(
      [&] { return object_->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.out()); });
  return FAILED(result) ? std::string() : documented_name(type);
}

std::string ComObject::name_of_class() {
  ComPtr<IProvideClassInfo> provider;
  ComPtr<ITypeInfo> type;
  HRESULT result = context_->patience.with(
      [&] { return object_->QueryInterface(IID_IProvideClassInfo, provider.out_void()); });
  if (FAILED(result)) return {};
  result = context_->patience.with([&] { return provider->GetClassInfo(type.out()); });
  return FAILED(result) ? std::string() : documented_name(type);
}

std::string ComObject::documented_name(const ComPtr<ITypeInfo>& type) {
  if (!type) return {};
  Bstr name;
  const HRESULT result = context_->patience.with(
      [&] { return type->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr); });
  return FAILED(result) ? std::string() : name.text();
}

/// For programs whose type information does not cross the border between processes.
std::string ComObject::name_by_class_number() {
  Variant value;
  const HRESULT result = try_invoke("Class", nullptr, value);
  if (result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND) return {};
  if (FAILED(result)) raise_result(result);
  return value.number() == kContactClass ? std::string(kContactType) : std::string();
}

}  // namespace quenda

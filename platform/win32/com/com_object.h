#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/win32/com/busy_program.h"
#include "platform/win32/com/com_support.h"

namespace quenda {

class Variant;

/// Identifiers of the members of one type of object, by name.
using Members = std::map<std::string, DISPID, std::less<>>;

/// What all objects share.
struct CallContext {
  Patience patience;
  std::map<std::string, std::shared_ptr<Members>, std::less<>> types = {};
};

/// An object of another program. It lives on the thread that makes the calls, and has the members
/// of the interface AutomationObject, with the same faults.
class ComObject {
 public:
  ComObject(std::shared_ptr<CallContext> context, ComPtr<IDispatch> object);
  std::string text(const std::string& name);
  long number(const std::string& name);
  std::unique_ptr<ComObject> object(const std::string& name);
  std::unique_ptr<ComObject> object(const std::string& name, long argument);
  std::unique_ptr<ComObject> object(const std::string& name, const std::string& argument);
  std::string type_name();

 private:
  std::unique_ptr<ComObject> object_given(const std::string& name, VARIANT* argument);
  HRESULT find_id(const std::string& name, DISPID& id);
  HRESULT try_invoke(const std::string& name, VARIANT* argument, Variant& value);
  HRESULT invoke_once(const std::string& name, VARIANT* argument, Variant& value);
  void invoke(const std::string& name, VARIANT* argument, Variant& value);
  std::string name_by_type_information();
  std::string name_of_interface();
  std::string name_of_class();
  std::string documented_name(const ComPtr<ITypeInfo>& type);
  std::string name_by_class_number();

  std::shared_ptr<CallContext> context_;
  std::shared_ptr<Members> members_ = std::make_shared<Members>();
  ComPtr<IDispatch> object_;
};

}  // namespace quenda

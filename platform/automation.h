#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quenda {

/// An object of another program, driven by the names of its members. Faults: 438 no such member,
/// 440 the other program failed or is gone.
class AutomationObject {
 public:
  virtual ~AutomationObject() = default;
  /// A property's value as text; dates in the short German form, nothing as the empty text.
  virtual std::string text(std::string_view name) = 0;
  /// A property's value as a whole number.
  virtual long number(std::string_view name) = 0;
  /// The object that a property holds.
  virtual std::unique_ptr<AutomationObject> object(std::string_view name) = 0;
  /// The object that a method or an indexed property returns for one argument.
  virtual std::unique_ptr<AutomationObject> object(std::string_view name, long argument) = 0;
  virtual std::unique_ptr<AutomationObject> object(std::string_view name,
                                                   std::string_view argument) = 0;
  /// The name of the object's type, as "ContactItem".
  virtual std::string type_name() = 0;
};

class Automation {
 public:
  virtual ~Automation() = default;
  /// Starts or finds the program of that identifier; fault 429 when there is none.
  virtual std::unique_ptr<AutomationObject> create(std::string_view program_id) = 0;
};

}  // namespace quenda

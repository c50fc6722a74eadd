#pragma once

namespace quenda {

class Form;

/// The user's side of the program: showing forms and taking in what the user does meanwhile.
class Events {
 public:
  virtual ~Events() = default;
  /// Handles the input that waits, without waiting for more. Handlers of controls run inside. Long
  /// work calls this once per record: implementations make a call that comes too early (less than
  /// about 20 ms after the last) cost next to nothing.
  virtual void yield() = 0;
  /// Shows the form and returns at once.
  virtual void show(Form& form) = 0;
  /// Shows the form over its owner, which takes no input meanwhile, and returns when the form has
  /// been unloaded.
  virtual void show_modal(Form& form, Form& owner) = 0;
};

}  // namespace quenda

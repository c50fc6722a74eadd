#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/controls/form.h"
#include "platform/win32/controls/named_object.h"
#include "platform/win32/controls/native_control.h"
#include "platform/win32/controls/spoken_name.h"

namespace quenda {

/// What a screen reader is told that the controls of a form are called. The service of the system
/// that keeps names is loaded when a reader first asks: most users have none, and need not wait for
/// it.
class ReaderNames {
 public:
  explicit ReaderNames(const Form& form) : form_(form) {}

  /// What a control has to answer a reader with itself; without a name where the system knows it.
  [[nodiscard]] Spoken to_answer(const NativeControl& native);
  void changed() { changed_ = true; }
  /// Tells a reader that listens of names, and of places in lists, that have changed.
  void tell(const std::vector<std::unique_ptr<NativeControl>>& controls);

 private:
  SpokenNames& service();
  void describe(const NativeControl& native);

  const Form& form_;
  bool changed_ = false;
  std::unique_ptr<SpokenNames> names_;
};

}  // namespace quenda

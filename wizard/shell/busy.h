#pragma once

#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// The hourglass over the main form, for work that takes no input in between.
class Hourglass {
 public:
  explicit Hourglass(WizardShell& form) : form_(form) { form_.set_pointer(Pointer::kHourglass); }
  ~Hourglass() { form_.set_pointer(Pointer::kDefault); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  WizardShell& form_;
};

/// Long work of the main form: hourglass, progress shown from 0, and no input but "cancel" until it
/// is over, however it ends.
class BusyWork {
 public:
  explicit BusyWork(WizardShell& form) : form_(form), hourglass_(form) {
    form_.lock_input(true);
    form_.PicProgress.set_percent(0);
    form_.PicProgress.set_visible(true);
  }
  ~BusyWork() {
    form_.PicProgress.set_visible(false);
    form_.PicProgress.set_percent(0);
    form_.lock_input(false);
  }
  BusyWork(const BusyWork&) = delete;
  BusyWork& operator=(const BusyWork&) = delete;

  /// A callable for rules that report their steps.
  [[nodiscard]] auto on_step() {
    return [this](std::size_t done, std::size_t total) { form_.show_step(done, total); };
  }

 private:
  WizardShell& form_;
  Hourglass hourglass_;
};

}  // namespace quenda

#pragma once

#include <functional>

#include "platform/controls/simple_controls.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// What lets an import be taken back: the box on the last page that has the book copied before it
/// is written, and the button on the first page, seen only while there is something to take back.
/// Its controls come after all others, whose ids stay what they are.
class WayBack {
 public:
  explicit WayBack(WizardShell& shell);

  void load_captions();
  void cmdUndo_Click();

  /// Asks the user and takes the last import back; what crosses pages is for the main form to do.
  std::function<void()> on_undo;

 private:
  WizardShell& shell_;

 public:
  CheckBox chkBackup{shell_, "chkBackup"};
  Button cmdUndo{shell_, "cmdUndo"};
};

}  // namespace quenda

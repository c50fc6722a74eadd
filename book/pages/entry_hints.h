#pragma once

#include <functional>

#include "book/pages/entry_page.h"
#include "book/pages/fOVWInput.h"
#include "platform/controls/simple_controls.h"

namespace quenda {

/// What stands beside the entries on the last page: that going back drops what was changed in the
/// list, what the own codes are for or which of them is missing, and a button that applies codes
/// which were changed there. Its controls come after all others, whose ids stay what they are.
class EntryHints {
 public:
  EntryHints(WizardShell& shell, EntryPage& page);

  void load_captions();
  /// Makes the entries anew with the codes that stand on the page now.
  void cmdCompose_Click();
  void codes_Change();

  /// Composes the entries of the source anew; what crosses pages is for the main form to do.
  std::function<void()> on_compose;

 private:
  WizardShell& shell_;
  EntryPage& page_;

 public:
  Label labEdited{shell_, "labEdited"};
  Label labCodes{shell_, "labCodes"};
  Button cmdCompose{shell_, "cmdCompose"};

 private:
  [[nodiscard]] OwnCodes own_codes() const;

  OwnCodes composed_with_;
};

}  // namespace quenda

#pragma once

#include "wizard/page_flow.h"

namespace quenda {

struct App;
class WizardShell;

/// One page of the wizard: its controls, what stands on them, and whether that is enough to go on.
/// A page knows the shell and the services, never the form that it is a part of.
class WizardPage {
 public:
  virtual ~WizardPage() = default;
  WizardPage(const WizardPage&) = delete;
  WizardPage& operator=(const WizardPage&) = delete;

  /// Whether "Weiter" leads on from what stands on the page now.
  [[nodiscard]] virtual bool can_go_on() const = 0;
  /// Another page is shown now; for controls that lie outside the page's own frame.
  virtual void page_shown(Page /*now*/) {}

 protected:
  explicit WizardPage(WizardShell& shell);

  WizardShell& shell_;
  App& app_;
};

}  // namespace quenda

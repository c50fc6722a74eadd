#include "wizard/shell/help.h"

#include "settings/app.h"
#include "support/shell.h"

namespace quenda {

void open_help(App& app) {
  modImport::ShellEx(app.errors, app.machine.system, "Open", kHelpPage, "", "");
}

}  // namespace quenda

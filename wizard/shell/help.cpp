#include "wizard/shell/help.h"

#include <string>

#include "platform/files.h"
#include "settings/app.h"
#include "support/shell.h"
#include "text/text.h"

namespace quenda {

void open_help(App& app) {
  const auto open = [&app](std::string_view page) {
    return modImport::ShellEx(app.errors, app.machine.system, "Open", page, "", "").empty();
  };
  if (open(kHelpPage)) return;
  // Without a browser that takes addresses there is still the handbook that packages bring along.
  const bool german = app.language.file_missing() || app.language.language() == "de";
  const std::string shipped = concat(app.paths.program_folder, "\\import-hilfe\\",
                                     german ? "handbuch.html" : "handbook.html");
  if (!app.machine.files.exists(shipped)) return;
  const MessageAnswer answer =
      app.message_box(app.text("Import_Msg_HelpShipped"), MessageStyle::kQuestionYesNo);
  if (answer == MessageAnswer::kYes) open(shipped);
}

}  // namespace quenda

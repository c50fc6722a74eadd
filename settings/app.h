#pragma once

#include <string>
#include <string_view>

#include "platform/dialogs.h"
#include "platform/machine.h"
#include "settings/import_settings.h"
#include "settings/ini/language_keys.h"
#include "settings/modAPI_INI.h"
#include "settings/modLanguage.h"
#include "settings/shared_texts.h"
#include "settings/suite_paths.h"
#include "settings/suite_specs.h"
#include "support/clsErrorHandling.h"
#include "support/modAPI_FileOpenDlg.h"

namespace quenda {

/// The suite's help about the import. The host is set by the build.
#ifndef QUENDA_HELP_HOST
#define QUENDA_HELP_HOST "https://www.quenda.example"
#endif
inline constexpr std::string_view kHelpPage = QUENDA_HELP_HOST "/index.php?id=800&cnt=1#imp";

/// Everything that lives as long as the program. Made in `main` before any form, gone after all of
/// them; the error service goes last and writes the trace lines that still wait.
struct App {
  explicit App(const Machine& services);
  App(const App&) = delete;
  App& operator=(const App&) = delete;

  /// The gate that every start passes: no second instance, the suite's folders, the texts, and the
  /// switch "/i" that tells that the phone book started the tool. False ends the program; whatever
  /// the user has to know has been said then.
  bool start();

  /// A text in the user's language.
  std::string text(TextKey key) { return language.LoadLangKey(key); }
  /// Shows a message under the program's own title.
  MessageAnswer message_box(std::string_view text, MessageStyle style);
  /// Shows the box about a fault. A button of it opens the trace log, which has the fault in it,
  /// or, while nothing is traced, shows the report and how to have a trace.
  void show_fault(std::string_view message, const std::string& report);
  void tell_fault(const std::string& report);
  /// Lets the user choose a file with a set of filters; empty when the user cancels, and, after a
  /// word about it, when the tool cannot name the file.
  std::string open_file(FilterSet filters);
  /// Tells the user that a file cannot be taken, because its path has characters outside
  /// Windows-1252; `nearest` is the path with those characters replaced.
  void refuse_path(std::string_view nearest);
  /// "1.17"
  [[nodiscard]] std::string version() const;

  Machine machine;
  ErrorEnvironment environment;
  clsErrorHandling errors;
  SuitePaths paths;
  SuiteSpecs specs;
  modAPI_INI ini;
  modLanguage language;
  SharedTexts shared_texts;
  ImportSettings settings;
};

}  // namespace quenda

#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/account/report_file.h"
#include "app/fMain.h"
#include "app/quenda-import/batch_run.h"
#include "app/quenda-import/console_services.h"
#include "book/pages/fImportMsg.h"
#include "platform/files.h"
#include "settings/app.h"
#include "sources/file_findings.h"

namespace quenda {

/// One run: the services of the terminal, the forms, and the user who knows beforehand what to do.
class BatchRun {
 public:
  BatchRun(const BatchOptions& options, const BatchMachine& machine, const BatchConsole& console);

  /// Does everything up to the end of the program.
  void run();
  [[nodiscard]] int status() const { return status_; }

 private:
  /// Says why the run ends, and ends it.
  [[noreturn]] void refuse(std::string_view message);
  void say(std::string_view message);

  /// Refuses a folder that is no suite's: the entries would go into a book somewhere else.
  void check_suite();
  /// A result that nobody gets is none: the status says so then.
  void check_output();
  void check_file();
  void take_file();
  void take_outlook();
  void warn(const std::vector<Finding>& findings);
  void choose_columns();
  void select_columns(std::size_t kind);
  [[noreturn]] void refuse_columns();
  void choose_names();
  void choose_addresses();
  /// Names entries whose text would be taken for a contact card when the book is read.
  void warn_about_cards();
  void write_or_show();
  /// Takes the last import back and ends the run.
  [[noreturn]] void undo();
  /// Nobody else of this kind is at the book as long as this lives.
  [[nodiscard]] std::unique_ptr<FileLock> lock_book();
  /// Merges the entries into the book, anew when it changes meanwhile.
  void write();
  void answer(Form& form);
  void answer_double(fImportMsg& dialog);
  /// The report that the settings want where no option does.
  void take_report_of_settings();
  /// Says why the report cannot be written where it is wanted, and ends the run.
  void check_report(std::string_view book);
  /// Tells what became of every number of the source, where that is asked for.
  void give_account();
  [[nodiscard]] std::string account_result() const;
  [[nodiscard]] std::vector<std::pair<std::string, std::string>> options_that_held() const;
  /// Presses "Weiter"; the page that comes has to be the given one.
  void go_on(Page page);

  const BatchOptions& options_;
  const BatchMachine& machine_;
  const BatchConsole& console_;
  int status_ = kExitRefused;
  std::string told_;       // what the last fault meant for the book
  bool composed_ = false;  // or tried to, as far as that went
  ReportFile report_;

  ProgressLine progress_;
  ConsoleDialogs dialogs_;
  ConsoleEvents events_;
  ConsoleLink link_;
  SuiteSystem system_;
  App app_;
  fMain main_;
};

}  // namespace quenda

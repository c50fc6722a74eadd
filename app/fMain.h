#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/account/import_account.h"
#include "app/account/list_rows.h"
#include "app/account/source_numbers.h"
#include "app/backup/book_backup.h"
#include "app/merge_run.h"
#include "book/book_change.h"
#include "book/book_lines.h"
#include "book/entry_list.h"
#include "book/import_report.h"
#include "book/merge.h"
#include "book/pages/entry_hints.h"
#include "book/pages/entry_page.h"
#include "book/pages/entry_results.h"
#include "book/pages/way_back.h"
#include "platform/files.h"
#include "sources/pages/outlook_page.h"
#include "sources/pages/source_page.h"
#include "text/flat_table.h"
#include "text/repeated_lines.h"
#include "wizard/composition.h"
#include "wizard/page_flow.h"
#include "wizard/pages/address_page.h"
#include "wizard/pages/column_page.h"
#include "wizard/pages/name_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

struct App;
class fImportReport;

/// The wizard: its shell and its six pages in one form. The order of the bases is that of the
/// controls, on which their ids in the window depend. What is here crosses pages; what belongs to
/// one page lies in sources/pages, wizard/pages and book/pages.
class fMain : public WizardShell,
              public SourcePage,
              public ColumnPage,
              public NamePage,
              public AddressPage,
              public EntryPage,
              public OutlookPage,
              public EntryHints,
              public WayBack,
              public EntryResults {
 public:
  explicit fMain(App& services);
  ~fMain() override;

  // Start, host link, shutdown.
  void Form_Load();
  void Form_LinkOpen();
  void Form_LinkClose();
  void Form_LinkError();
  void Form_Unload();
  void Form_GotFocus();
  void Language();
  void cmdCancel_Click();
  void LoadWindowPosition();
  void LoadPageOptions();
  void LoadSelections();
  void LoadHeaderOptions();
  void SaveWindowPosition();
  void SaveSelections();
  void SaveOptions(bool delimited_file);

  // From page to page.
  void cmdFor_Click();
  void cmdBack_Click() override;

  // From the pages to the entries, and from the entries to the book. What is composed: whether it
  // was to the end.
  [[nodiscard]] bool Scramble();
  [[nodiscard]] bool PreviewEntries();
  [[nodiscard]] bool ISpyImport();
  [[nodiscard]] bool ListUpdate();
  void Add();

  /// Takes the last import back that has copied the book, and says how far that went. False after a
  /// fault, which the user has been told.
  bool take_back_import();

  // What becomes of every number of the source.
  /// Merges as Add does and writes nothing; questions are found, not put. Whether the book could be
  /// read.
  bool look_ahead();
  /// Tells of every number of the source, by the merge that ran last. Returns the count of records.
  std::size_t account(const std::function<void(const ReportRow&)>& on_row);
  /// Writes the report that the settings want about the merge that ran last.
  void write_report();
  /// Shows the user what would become of every number.
  void show_report();
  [[nodiscard]] const MergeRun* last_merge() const { return last_merge_.get(); }

  LineEnd book_line_end = LineEnd::kCrLf;  // of the book that was read last

 private:
  void connect();
  void clean_file();
  void run_page_work(PageWork work);
  void enter_file_entries();
  void compose_again();
  void return_to_source();
  void show_page_state();
  /// Suffixes, order and addresses of a suggestion whose columns have been chosen.
  void adopt(const ColumnSuggestion& suggestion);
  /// The same of a choice that was remembered for the header of the file.
  void adopt(const HeaderChoice& choice);
  void remember_header();
  [[nodiscard]] Composition composition() const;
  [[nodiscard]] CleanNumber number_cleaner();
  /// Reads the book and merges the entries into it, up to what is to be written.
  MergeRun::End merge_into_book(MergeRun& run, const AskAboutDouble& ask);
  MergeRun::End write_book(MergeRun& run);
  MergeRun::End merge_and_write(MergeRun& run);
  [[nodiscard]] TailTexts book_texts() const;
  [[nodiscard]] BookBackup book_backup();
  ReplaceResult replace_book(const MergeRun& run, const BookChange& change);
  ReplaceResult back_up_and_replace(const MergeRun& run, const BookChange& change);
  /// The button for the way back, where there is one.
  void show_way_back();
  void ask_and_take_back();
  void tell_of(const BookBackup::Outcome& outcome, const std::string& folder);
  /// False when the book cannot be read without losing entries; the user has been told then.
  bool book_readable(MergeRun& run);
  DoubleAnswer ask_about_double(const DoubleQuestion& question);

  /// Whether the settings want a report that can be written; the user is told when it cannot.
  [[nodiscard]] bool report_possible();
  void tell_no_report(const std::string& path);
  /// False after a fault.
  bool write_report_to(const std::string& path, bool dry_run);
  void save_report(fImportReport& dialog);
  AccountInput account_input();
  /// The number of a row of the final list, as the source has it.
  std::string number_of_source(std::size_t row);
  /// In which lines of its file each record of the source begins.
  void find_source_lines();
  std::size_t walk_source(ListRows& listed, const OnSourceNumber& on_number);

  App& app_;
  bool book_written_ = false;
  bool report_wanted_ = false;
  std::unique_ptr<MergeRun> last_merge_;
  std::size_t composed_records_ = 0;    // of a file, by the last composition
  FlatTable entries_{kEntryColumns};    // being collected; the final list takes them over
  std::vector<RepeatedLine> repeated_;  // among them
};

}  // namespace quenda

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "book/book_lines.h"
#include "book/entry_list.h"
#include "book/merge.h"
#include "book/pages/entry_hints.h"
#include "book/pages/entry_page.h"
#include "sources/pages/outlook_page.h"
#include "sources/pages/source_page.h"
#include "text/flat_table.h"
#include "wizard/composition.h"
#include "wizard/page_flow.h"
#include "wizard/pages/address_page.h"
#include "wizard/pages/column_page.h"
#include "wizard/pages/name_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

struct App;

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
              public EntryHints {
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

  LineEnd book_line_end = LineEnd::kCrLf;  // of the book that was read last

 private:
  void connect();
  void clean_file();
  void run_page_work(PageWork work);
  void enter_file_entries();
  void compose_again();
  void return_to_source();
  void show_page_state();
  [[nodiscard]] Composition composition() const;
  [[nodiscard]] CleanNumber number_cleaner();
  enum class Merge { kDone, kFailed, kChangedMeanwhile };
  /// Where the merge did not come to its end for a fault, the user has been told why.
  Merge merge_into_book(std::string& book_text, std::string_view& line);
  /// False when the book cannot be read without losing entries; the user has been told then.
  bool book_readable(std::string_view book);
  DoubleAnswer ask_about_double(std::string_view number, const std::string& existing,
                                const std::string& fresh);

  App& app_;
  bool book_written_ = false;
  FlatTable entries_{kEntryColumns};  // being collected; the final list takes them over
};

}  // namespace quenda

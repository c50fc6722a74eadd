#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "book/foreseen_fates.h"
#include "book/pages/entry_page.h"
#include "book/pages/result_texts.h"
#include "platform/controls/simple_controls.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// The last column of the final list: what "Übernehmen" will do with each entry, by the options as
/// they stand, and whether its number looks doubtful. The book is read for that while the page is
/// seen, between the user's doings, and never written. What cannot be found out leaves the column
/// empty: applying says why. Its controls come after all others, whose ids stay what they
/// are.
class EntryResults {
 public:
  EntryResults(WizardShell& shell, EntryPage& page);

  void load_captions();
  /// The text of the column, made when a row is shown.
  [[nodiscard]] std::string result_of(std::size_t row) const;
  /// The memory of a large book is needed for the import itself.
  void make_room();
  /// Looks at the book again, soon.
  void renew();

  void cmdReport_Click();
  /// Shows what becomes of every number; what crosses pages is for the main form to do.
  std::function<void()> on_report;
  /// The number of a row as the source has it.
  std::function<std::string(std::size_t row)> number_in_source;

 private:
  void tick();
  void look();
  [[nodiscard]] bool seen() const;
  /// Whether the book could be read; the text is kept until the file changes.
  [[nodiscard]] bool read_book();

  WizardShell& shell_;
  EntryPage& page_;
  ResultTexts texts_;
  std::string book_;
  std::uint64_t book_stamp_ = 0;
  LineEnd book_end_ = LineEnd::kCrLf;
  std::vector<RowFate> fates_;  // one per row; none while nothing is known
  unsigned changes_ = 0;        // told so far: a look that began before one of them is given up
  bool looking_ = false;

 public:
  Timer tmResults{shell_, "tmResults"};
  Button cmdReport{shell_, "cmdReport"};
};

}  // namespace quenda

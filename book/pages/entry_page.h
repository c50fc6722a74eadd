#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "book/merge.h"
#include "book/pages/fImportItemEdit.h"
#include "book/removed_rows.h"
#include "platform/controls/control_array.h"
#include "platform/controls/list_view.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "settings/import_settings.h"
#include "wizard/shell/wizard_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// How the composition of the entries ended: the source had no data at all or the user has deleted
/// all entries, a fault stopped it, or it came through, with entries or without.
enum class Composed { kNothing, kFailed, kEntries };

/// The last page: the entries, looked through before they go into the book, and the own codes that
/// complete their numbers.
class EntryPage : public WizardPage {
 public:
  explicit EntryPage(WizardShell& shell);

  /// The entries were composed to the end, and the user has not deleted all of them.
  [[nodiscard]] bool can_go_on() const override { return composed_ == Composed::kEntries; }
  void load_captions();
  void load(const ImportSettings& settings);
  void save(ImportSettings& settings) const;

  /// Nothing stays of the entries that were composed last.
  void drop_entries();
  /// Entries are about to be composed from a source that can be imported: the way on is open before
  /// they are there.
  void expect_entries();
  /// Shows what a composition gave. One that failed half way gives nothing to import; one that came
  /// through and found nothing can be finished.
  void show_composed(Composed composed);
  [[nodiscard]] const RemovedRows& removed_rows() const { return removed_rows_; }
  [[nodiscard]] bool composition_failed() const { return composed_ == Composed::kFailed; }

  std::string fCleanNumbers(std::string_view number);
  std::string AddVW(std::string_view number);
  /// Asks for the own codes until they are good enough. False after a fault.
  [[nodiscard]] bool CheckAreaCode();
  void lstImpFinal_DblClick();
  void lstImpFinal_KeyDown(std::int16_t code);
  void cmdEditItems_Click();
  void cmdDel_Click();
  void ChangeItem();
  void optAsk_Click(int index);

  /// The user has changed or deleted an entry.
  std::function<void()> on_edited;
  /// The entries were composed anew.
  std::function<void()> on_composed;
  /// One entry was changed or deleted; the row is counted as it was before.
  std::function<void(std::size_t row)> on_row_changed;
  std::function<void(std::size_t row)> on_row_removed;
  /// The user has said what becomes of numbers that the book has.
  std::function<void()> on_mode_chosen;

  MergeMode merge_mode = MergeMode::kAsk;
  /// The entry that comes back from fImportItemEdit.
  EditedItem edited;

  Label labImpFinal{shell_, "labImpFinal"};
  ListView lstImpFinal{shell_, "lstImpFinal"};
  Button cmdEditItems{shell_, "cmdEditItems"};
  Button cmdDel{shell_, "cmdDel"};
  Label labDelete{shell_, "labDelete"};
  Frame frmAsk{shell_, "frmAsk"};
  ControlArray<OptionButton> optAsk{shell_, "optAsk", {0, 1, 2}};
  Label labStateCode{shell_, "labStateCode"};
  TextBox txtStateCode{shell_, "txtStateCode"};
  Label labOVW{shell_, "labOVW"};
  TextBox txtOVW{shell_, "txtOVW"};
  Label labOVWhint{shell_, "labOVWhint"};

 protected:
  /// "37 gültige Einträge" in panel 3.
  void show_count();

 private:
  void design();
  void connect();

  Composed composed_ = Composed::kNothing;
  RemovedRows removed_rows_;  // since the entries were composed
};

}  // namespace quenda

#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls/control_array.h"
#include "platform/controls/list_view.h"
#include "platform/controls/lists.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/splitter.h"
#include "platform/dialogs.h"
#include "settings/header_memory.h"
#include "settings/import_settings.h"
#include "sources/column_suggestion.h"
#include "sources/table_facts.h"
#include "wizard/composition.h"
#include "wizard/header_columns.h"
#include "wizard/pages/record_preview.h"
#include "wizard/shell/wizard_page.h"
#include "wizard/shell/wizard_shell.h"

namespace quenda {

/// The second page: which columns of the file hold names, numbers and addresses. The preview of the
/// file belongs to the page of names as well.
class ColumnPage : public WizardPage {
 public:
  explicit ColumnPage(WizardShell& shell);

  /// A header is shown, and of its columns neither too few nor too many are chosen.
  [[nodiscard]] bool can_go_on() const override;
  void page_shown(Page now) override;
  void load_captions();
  void save(ImportSettings& settings) const;

  void ImpHeader();
  void lstHeader_Click(int index);
  void ListColor();

  /// The chosen columns, of each kind as many as are taken.
  [[nodiscard]] ColumnChoice choice() const;
  /// Their header texts, without double quotes.
  [[nodiscard]] std::vector<std::string> chosen_names(HeaderKind kind) const;

  ControlArray<Label> labHeader{shell_, "labHeader", {0, 1, 2, 3}};
  ControlArray<ListBox> lstHeader{shell_, "lstHeader", {0, 1, 2, 3}};
  Label labShow{shell_, "labShow"};
  ListView lstShow{shell_, "lstShow"};
  Label labTable{shell_, "labTable"};
  Button cmdSuggest{shell_, "cmdSuggest"};
  Splitter splPreview{shell_, "splPreview"};

  /// Chooses the columns of the known export that the file is; false for an unknown one.
  bool take_suggestion();
  /// Told of a suggestion that was taken: what it says about suffixes and addresses.
  std::function<void(const ColumnSuggestion& suggestion)> on_suggestion;
  /// Told of the choice made before for this header: what it says about the pages after this one.
  std::function<void(const HeaderChoice& choice)> on_remembered;
  /// The numbers of a file whose suggestion was taken that stand in columns which are not chosen.
  [[nodiscard]] std::vector<ColumnNumbers> unchosen_numbers() const;
  /// The column names of the file.
  [[nodiscard]] const std::vector<std::string>& header() const { return header_; }
  /// What the records of the file whose header is shown say about themselves.
  [[nodiscard]] const TableFacts& table_facts();

 private:
  void design();
  void connect();
  /// Says why there are no columns to be chosen, and leads back to the source page.
  void refuse_file(std::string_view reason, MessageStyle style);
  void fill_header_lists(const std::vector<std::string>& header);
  /// False when the user has to choose, since the columns of the last import do not fit.
  bool select_saved_columns(const std::vector<std::string>& header);
  bool select_remembered(const std::vector<std::string>& header);
  void select_columns(const std::array<std::vector<std::size_t>, kHeaderKinds>& columns);
  void show_table_facts();
  void offer_suggestion(bool fits);
  [[nodiscard]] std::string_view source_name() const;
  void show_below_lists();
  [[nodiscard]] const ListBox& list(std::size_t kind) const {
    return lstHeader(static_cast<int>(kind));
  }
  [[nodiscard]] std::vector<std::size_t> chosen_columns(std::size_t kind) const;

  RecordPreview preview_;
  bool header_shown_ = false;
  std::vector<std::string> header_;
  std::optional<TableFacts> table_facts_;
  bool suggestion_offered_ = false;
  std::vector<ColumnNumbers> numbers_;  // of the file, once its suggestion was taken
};

}  // namespace quenda

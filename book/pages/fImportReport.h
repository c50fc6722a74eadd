#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "book/pages/result_texts.h"
#include "book/report_rows.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/lists.h"
#include "platform/controls/simple_controls.h"

namespace quenda {

struct App;

/// Tells of every number of the source what becomes of it.
class fImportReport : public Form {
 public:
  /// `has_lines` is whether the source is a file.
  fImportReport(App& app, const ReportRows& rows, bool has_lines);

  /// The row of the final list that the user wants to see.
  std::optional<std::size_t> answer;
  /// Saves the report to a file that the user chooses.
  std::function<void()> on_save;

  void Form_Load();
  void Language();
  void cmbFate_Click();
  void lstReport_Select();
  void lstReport_DblClick();
  void lstReport_KeyDown(std::int16_t code);
  void lstReport_Copy();
  void cmdSave_Click();
  void cmdHelp_Click();

  Label labSum{*this, "labSum"};
  Label labFate{*this, "labFate"};
  ComboList cmbFate{*this, "cmbFate"};
  ListView lstReport{*this, "lstReport"};
  Label labHint{*this, "labHint"};
  Button cmdSave{*this, "cmdSave"};
  Button cmdClose{*this, "cmdClose"};
  Button cmdHelp{*this, "cmdHelp"};
  Label labReason{*this, "labReason"};  // in full, of the row that is chosen

 private:
  /// The rows that are shown.
  class Shown : public RowSource {
   public:
    explicit Shown(const fImportReport& dialog) : dialog_(dialog) {}
    [[nodiscard]] std::size_t rows() const override;
    [[nodiscard]] std::string cell(std::size_t row, std::size_t column) const override;

   private:
    const fImportReport& dialog_;
  };

  void design();
  void connect();
  /// "1.204"
  [[nodiscard]] std::string grouped(std::size_t number) const;
  [[nodiscard]] std::string sum_text() const;
  /// Which number stands in a row of the list.
  [[nodiscard]] std::size_t number_at(std::size_t row) const;
  [[nodiscard]] std::string text_of(std::size_t number, std::size_t column) const;

  App& app_;
  const ReportRows& rows_;
  bool has_lines_;
  ResultTexts texts_;
  std::string thousands_;
  std::vector<Fate> choices_;                       // behind "all"
  std::optional<std::vector<std::uint32_t>> some_;  // the numbers that are shown; or else all
  Shown shown_{*this};
};

}  // namespace quenda

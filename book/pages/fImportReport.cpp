#include "book/pages/fImportReport.h"

#include <array>

#include "platform/dialogs.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/shell/design.h"
#include "wizard/shell/help.h"

namespace quenda {
namespace {

enum Column : std::size_t { kLine, kName, kNumber, kAddress, kFate, kReason, kColumns };

constexpr DesignRow<fImportReport> kDesign[] = {
    {.control = control_at<&fImportReport::labSum>,
     .place = {180, 150, 10140, 510},
     .across = Anchor::kBoth},
    {.control = control_at<&fImportReport::labFate>, .place = {180, 825, 1200, 255}, .tab = 0},
    {.control = control_at<&fImportReport::cmbFate>, .place = {1440, 765, 3600, 345}, .tab = 1},
    {.control = control_at<&fImportReport::lstReport>,
     .place = {180, 1230, 10140, 3690},
     .tab = 2,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&fImportReport::labReason>,
     .place = {180, 4995, 10140, 465},
     .across = Anchor::kBoth,
     .down = Anchor::kEnd},
    {.control = control_at<&fImportReport::labHint>,
     .place = {180, 5535, 10140, 255},
     .across = Anchor::kBoth,
     .down = Anchor::kEnd},
    {.control = control_at<&fImportReport::cmdSave>,
     .place = {6060, 5910, 2400, 390},
     .tab = 3,
     .across = Anchor::kEnd,
     .down = Anchor::kEnd},
    {.control = control_at<&fImportReport::cmdClose>,
     .place = {8580, 5910, 1740, 390},
     .tab = 4,
     .across = Anchor::kEnd,
     .down = Anchor::kEnd},
    {.control = control_at<&fImportReport::cmdHelp>,
     .place = {180, 5910, 1400, 390},
     .tab = 5,
     .caption = "Button_Help",
     .down = Anchor::kEnd},
};

}  // namespace

fImportReport::fImportReport(App& app, const ReportRows& rows, bool has_lines)
    : Form("fImportReport"), app_(app), rows_(rows), has_lines_(has_lines) {
  design();
  connect();
  Form_Load();
}

void fImportReport::design() {
  apply_design(*this, kDesign);
  set_place({0, 0, 10500, 6450});
  set_resizable(true);
  lstReport.set_columns({{"", 700}, {"", 1850}, {"", 1450}, {"", 1600}, {"", 1600}, {"", 2600}});
  default_button = &cmdClose;
  cancel_button = &cmdClose;
}

void fImportReport::connect() {
  cmbFate.on_click = [this] { cmbFate_Click(); };
  lstReport.on_select = [this] { lstReport_Select(); };
  lstReport.on_double_click = [this] { lstReport_DblClick(); };
  lstReport.on_key_down = [this](std::int16_t code) { lstReport_KeyDown(code); };
  lstReport.on_copy = [this] { lstReport_Copy(); };
  cmdSave.on_click = [this] { cmdSave_Click(); };
  cmdClose.on_click = [this] { unload(); };
  cmdHelp.on_click = [this] { cmdHelp_Click(); };
  on_help = cmdHelp.on_click;
  on_got_focus = [this] { lstReport.set_focus(); };
}

void fImportReport::Form_Load() {
  procedure(app_.errors, "fImportReport.Form_Load", {}, [&] {
    Language();
    std::vector<std::string> choices = {
        replace_all(app_.text("Import_Report_All"), "%1", grouped(rows_.size()))};
    for (std::size_t i = 0; i < kFates; ++i) {
      if (rows_.counts().at(i) == 0) continue;
      choices_.push_back(static_cast<Fate>(i));
      choices.push_back(
          concat(texts_.word(choices_.back()), " (", grouped(rows_.counts().at(i)), ")"));
    }
    cmbFate.set_items(std::move(choices));
    cmbFate.set_list_index(0);
  }).or_go_on();
}

void fImportReport::Language() {
  procedure(app_.errors, "fImportReport.Language", {}, [&] {
    load_captions(*this, kDesign, app_);
    texts_.load(app_);
    thousands_ = app_.text("Import_Report_Thousands");
    const std::string title = app_.text("Import_Report_Title");
    set_caption(concat("Quenda - ", title));
    labSum.set_caption(sum_text());
    labFate.set_caption(app_.text("Import_Report_Show"));
    labHint.set_caption(app_.text("Import_Report_Hint"));
    cmdSave.set_caption(app_.text("Import_Report_Save"));
    cmdClose.set_caption(app_.text("Import_Report_Close"));
    lstReport.set_spoken_name(title);
    lstReport.set_column_heading(
        kLine, app_.text(has_lines_ ? TextKey("Import_Report_Line") : "Import_Report_Contact"));
    lstReport.set_column_heading(kName, app_.text("String_Name"));
    lstReport.set_column_heading(kNumber, app_.text("String_Number"));
    lstReport.set_column_heading(kAddress, app_.text("String_Address"));
    lstReport.set_column_heading(kFate, app_.text("Import_Column_Result"));
    lstReport.set_column_heading(kReason, app_.text("Import_Report_Reason"));
  }).or_go_on();
}

std::string fImportReport::grouped(std::size_t number) const {
  constexpr std::size_t kGroup = 3;
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > kGroup;) digits.insert(at -= kGroup, thousands_);
  return digits;
}

std::string fImportReport::sum_text() const {
  std::string parts;
  for (std::size_t i = 0; i < kFates; ++i) {
    const std::size_t count = rows_.counts().at(i);
    if (count == 0) continue;
    parts +=
        concat(parts.empty() ? ": " : ", ", grouped(count), " ", texts_.word(static_cast<Fate>(i)));
  }
  return concat(replace_all(app_.text("Import_Report_Sum"), "%1", grouped(rows_.size())), parts,
                ".");
}

std::size_t fImportReport::Shown::rows() const {
  return dialog_.some_ ? dialog_.some_->size() : dialog_.rows_.size();
}

std::string fImportReport::Shown::cell(std::size_t row, std::size_t column) const {
  return dialog_.text_of(dialog_.number_at(row), column);
}

std::size_t fImportReport::number_at(std::size_t row) const { return some_ ? some_->at(row) : row; }

std::string fImportReport::text_of(std::size_t number, std::size_t column) const {
  if (column == kLine) return std::to_string(rows_.line(number));
  const ReportRow row = rows_.row(number);
  switch (column) {
    case kName:
      return std::string(row.name);
    case kNumber:
      // As the source has it where there is no other.
      return std::string(row.number.empty() ? row.raw : row.number);
    case kAddress:
      return std::string(row.address);
    case kFate:
      return texts_.word(row.fate);
    default:
      return texts_.reason(row);
  }
}

void fImportReport::cmbFate_Click() {
  procedure(app_.errors, "fImportReport.cmbFate_Click", {}, [&] {
    const int chosen = cmbFate.list_index();
    some_.reset();
    if (chosen > 0) {
      const Fate fate = choices_.at(static_cast<std::size_t>(chosen) - 1);
      some_.emplace();
      for (std::size_t at = 0; at < rows_.size(); ++at) {
        if (rows_.fate(at) == fate) some_->push_back(static_cast<std::uint32_t>(at));
      }
    }
    lstReport.set_source(&shown_);
    lstReport_Select();
  }).or_go_on();
}

void fImportReport::lstReport_Select() {
  procedure(app_.errors, "fImportReport.lstReport_Select", {}, [&] {
    const int chosen = lstReport.selected();
    if (chosen < 0) return labReason.set_caption("");
    const ReportRow row = rows_.row(number_at(static_cast<std::size_t>(chosen)));
    labReason.set_caption(concat(texts_.word(row.fate), ": ", texts_.reason(row)));
  }).or_go_on();
}

void fImportReport::lstReport_DblClick() {
  procedure(app_.errors, "fImportReport.lstReport_DblClick", {}, [&] {
    if (lstReport.selected() < 0) return;
    answer = rows_.list_row(number_at(static_cast<std::size_t>(lstReport.selected())));
    if (answer) unload();
  }).or_go_on();
}

void fImportReport::lstReport_KeyDown(std::int16_t code) {
  procedure(app_.errors, "fImportReport.lstReport_KeyDown", {code}, [&] {
    constexpr std::int16_t kEnter = 13;
    if (code == kEnter) lstReport_DblClick();
  }).or_go_on();
}

void fImportReport::lstReport_Copy() {
  procedure(app_.errors, "fImportReport.lstReport_Copy", {}, [&] {
    // Cells with tabs between them: what spreadsheets take.
    std::string text;
    for (std::size_t column = 0; column < kColumns; ++column) {
      text += concat(column == 0 ? "" : "\t", lstReport.columns()[column].heading);
    }
    text += kCrLf;
    for (std::size_t row = 0; row < shown_.rows(); ++row) {
      for (std::size_t column = 0; column < kColumns; ++column) {
        if (column > 0) text += '\t';
        text += replace_all(shown_.cell(row, column), "\t", " ");
      }
      text += kCrLf;
    }
    app_.machine.dialogs.copy_text(text);
  }).or_go_on();
}

void fImportReport::cmdSave_Click() {
  procedure(app_.errors, "fImportReport.cmdSave_Click", {}, [&] {
    if (on_save) on_save();
  }).or_go_on();
}

void fImportReport::cmdHelp_Click() {
  procedure(app_.errors, "fImportReport.cmdHelp_Click", {}, [&] { open_help(app_); }).or_go_on();
}

}  // namespace quenda

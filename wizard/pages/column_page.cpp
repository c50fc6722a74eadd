#include "wizard/pages/column_page.h"

#include <algorithm>
#include <array>
#include <memory>

#include "settings/app.h"
#include "sources/delimited_text.h"
#include "sources/file_findings.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/shell/design.h"
#include "wizard/shell/finding_text.h"

namespace quenda {
namespace {

constexpr int kPageWidth = 10440;

constexpr DesignRow<ColumnPage> kDesign[] = {
    {.control = control_at<&ColumnPage::labHeader, 0>,
     .place = {0, 0, 2490, 255},
     .tab = 20,
     .caption = "Import_Label_ColumnsNames",
     .across = Anchor::kShare},
    {.control = control_at<&ColumnPage::lstHeader, 0>,
     .place = {0, 285, 2490, 2070},
     .tab = 21,
     .across = Anchor::kShare,
     .down = Anchor::kBoth},
    {.control = control_at<&ColumnPage::labHeader, 1>,
     .place = {2650, 0, 2490, 255},
     .tab = 22,
     .caption = "Import_Label_ColumnsNumbers",
     .across = Anchor::kShare},
    {.control = control_at<&ColumnPage::lstHeader, 1>,
     .place = {2650, 285, 2490, 2070},
     .tab = 23,
     .across = Anchor::kShare,
     .down = Anchor::kBoth},
    {.control = control_at<&ColumnPage::labHeader, 2>,
     .place = {5300, 0, 2490, 255},
     .tab = 24,
     .caption = "Import_Label_ColumnsAddresses",
     .across = Anchor::kShare},
    {.control = control_at<&ColumnPage::lstHeader, 2>,
     .place = {5300, 285, 2490, 2070},
     .tab = 25,
     .across = Anchor::kShare,
     .down = Anchor::kBoth},
    {.control = control_at<&ColumnPage::labHeader, 3>,
     .place = {7950, 0, 2490, 255},
     .tab = 26,
     .caption = "Import_Label_ColumnsAddresses",
     .across = Anchor::kShare},
    {.control = control_at<&ColumnPage::lstHeader, 3>,
     .place = {7950, 285, 2490, 2070},
     .tab = 27,
     .across = Anchor::kShare,
     .down = Anchor::kBoth},
};

/// What there is to say about the records, beside the button of the suggestion or in its place.
constexpr Place kBesideButton = {2650, 2460, 5140, 255};
constexpr Place kBesideNothing = {2650, 2460, kPageWidth - 2650, 255};

/// Below the page, shared with the next one.
constexpr DesignRow<ColumnPage> kPreviewDesign[] = {
    {.control = control_at<&ColumnPage::labShow>,
     .place = {0, 2460, 2490, 255},
     .tab = 100,
     .caption = "Import_Label_PreviewData"},
    {.control = control_at<&ColumnPage::labTable>,
     .place = kBesideButton,
     .across = Anchor::kBoth,
     .down = Anchor::kShareStart},
    {.control = control_at<&ColumnPage::cmdSuggest>,
     .place = {7950, 2385, 2490, 330},
     .tab = 28,
     .across = Anchor::kEnd,
     .down = Anchor::kShareStart},
    {.control = control_at<&ColumnPage::lstShow>,
     .place = {0, 2745, kPageWidth, 2655},
     .tab = 101,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&ColumnPage::splPreview>,
     .place = {0, 2355, kPageWidth, 105},
     .tab = 29,
     .across = Anchor::kBoth,
     .down = Anchor::kShareStart},
};

// Each side keeps its headings and three rows.
constexpr int kLeastLists = 1050;
constexpr int kLeastPreview = 1380;

}  // namespace

ColumnPage::ColumnPage(WizardShell& shell) : WizardPage(shell) {
  shell_.set_page(Page::kColumns, *this);
  design();
  connect();
}

void ColumnPage::design() {
  apply_design(*this, kDesign, &shell_.frmImp(1));
  apply_design(*this, kPreviewDesign, &shell_.frmPages);
  labTable.set_visible(false);
  labTable.set_announced();
  labTable.set_shows_data(true);
  labTable.set_one_line();
  cmdSuggest.set_visible(false);
  splPreview.set_visible(false);
  splPreview.set_least(kLeastLists, kLeastPreview);
}

void ColumnPage::connect() {
  cmdSuggest.on_click = [this] { take_suggestion(); };
  for (const auto& list : lstHeader) {
    list->on_click = [this, index = list->index()] { lstHeader_Click(index); };
  }
}

void ColumnPage::load_captions() {
  quenda::load_captions(*this, kDesign, app_);
  quenda::load_captions(*this, kPreviewDesign, app_);
  splPreview.set_spoken_name(app_.text("Import_Label_PreviewBorder"));
  cmdSuggest.set_caption(text_of(app_, Finding{"Import_Button_Suggestion", {""}}));
  for (const int address : {1, 2}) {
    Label& label = labHeader(address + 1);
    label.set_caption(concat(label.caption(), " ", std::to_string(address)));
  }
}

void ColumnPage::page_shown(Page now) {
  const bool preview = now == Page::kColumns || now == Page::kNames;
  lstShow.set_visible(preview);
  labShow.set_visible(preview);
  // The lists of columns above it use their share of the height, which the user can change; the
  // fields of the names cannot.
  const bool shared = now == Page::kColumns;
  splPreview.set_visible(shared);
  labShow.set_anchors(Anchor::kStart, shared ? Anchor::kShareStart : Anchor::kStart);
  lstShow.set_anchors(Anchor::kBoth, shared ? Anchor::kShare : Anchor::kBoth);
  show_below_lists();
}

void ColumnPage::show_below_lists() {
  const bool shown = shell_.wizard.CurrentPage == Page::kColumns;
  labTable.set_visible(shown && !labTable.caption().empty());
  cmdSuggest.set_visible(shown && suggestion_offered_);
  labTable.set_place(suggestion_offered_ ? kBesideButton : kBesideNothing);
}

bool ColumnPage::can_go_on() const {
  return header_shown_ &&
         columns_sufficient(list(kNames).selected_count(), list(kNumbers).selected_count());
}

std::vector<std::size_t> ColumnPage::chosen_columns(std::size_t kind) const {
  const std::vector<int> positions = list(kind).selected_positions();
  const std::size_t count = std::min(positions.size(), most_columns(kind));
  return {positions.begin(), positions.begin() + static_cast<std::ptrdiff_t>(count)};
}

ColumnChoice ColumnPage::choice() const {
  return {.names = chosen_columns(kNames),
          .numbers = chosen_columns(kNumbers),
          .addresses = {chosen_columns(kAddress1), chosen_columns(kAddress2)}};
}

std::vector<std::string> ColumnPage::chosen_names(HeaderKind kind) const {
  std::vector<std::string> texts;
  for (const std::size_t column : chosen_columns(kind)) {
    texts.push_back(replace_all(list(kind).item(static_cast<int>(column)), "\"", ""));
  }
  return texts;
}

void ColumnPage::save(ImportSettings& settings) const {
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    const std::vector<std::size_t> columns = chosen_columns(kind);
    settings.selections[kind].fill("");
    settings.selection_counts[kind] = static_cast<std::int32_t>(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
      settings.selections[kind].at(i) = list(kind).item(static_cast<int>(columns[i]));
    }
  }
}

}  // namespace quenda

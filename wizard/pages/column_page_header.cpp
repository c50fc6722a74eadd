#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "settings/app.h"
#include "settings/ini/ini_text.h"
#include "sources/delimited_text.h"
#include "sources/file_findings.h"
#include "sources/known_exports.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/pages/column_page.h"
#include "wizard/shell/finding_text.h"

// The header of the file on the columns' page, and what a click on it does.
namespace quenda {
namespace {

/// Width in twips of a preview's column whose longest text has so many characters: whole numbers
/// are to be read, and a long note must not push the other columns out of sight.
int preview_width(std::size_t characters) {
  constexpr std::size_t kFewest = 8;
  constexpr std::size_t kMost = 32;
  constexpr int kCharacter = 105;  // of the message font, on average
  constexpr int kMargin = 240;
  return static_cast<int>(std::clamp(characters, kFewest, kMost)) * kCharacter + kMargin;
}

/// As wide as the header and the first records want them.
std::vector<ListColumn> preview_columns(const std::vector<std::string>& header,
                                        const RecordTable& records, char delimiter) {
  constexpr std::size_t kRecordsLookedAt = 50;
  constexpr std::size_t kMark = 5;  // what a heading gets when its column is chosen
  std::vector<std::size_t> longest;
  longest.reserve(header.size());
  for (const std::string& heading : header) longest.push_back(heading.size() + kMark);
  for (std::size_t row = 1; row < std::min(records.size(), kRecordsLookedAt); ++row) {
    std::string_view rest = records[row];
    std::string_view field;
    for (std::size_t& size : longest) {
      if (!next_part(rest, std::string_view(&delimiter, 1), field)) break;
      size = std::max(size, field.size() - count_of(field, '"'));
    }
  }
  std::vector<ListColumn> columns;
  columns.reserve(header.size());
  for (std::size_t i = 0; i < header.size(); ++i) {
    columns.push_back({.heading = header[i], .width = preview_width(longest[i])});
  }
  return columns;
}

/// The column names of the header. A name longer than 64 KB is a file without line ends, which has
/// to fit into memory several times less than its lists would take.
std::vector<std::string> column_names(const RecordTable& records, char delimiter) {
  constexpr std::size_t kLongestName = 64UL * 1024;
  std::vector<std::string> names = shown_fields(records.padded_text(0, delimiter), delimiter);
  for (std::string& name : names) {
    if (name.size() > kLongestName) name = name.substr(0, kLongestName);
  }
  return names;
}

}  // namespace

void ColumnPage::ImpHeader() {
  procedure(app_.errors, "fMain.ImpHeader", {}, [&] {
    const ImportSource& source = shell_.source;
    const MainTexts& texts = shell_.texts;
    header_shown_ = false;
    header_.clear();
    table_facts_.reset();
    suggestion_offered_ = false;
    numbers_.clear();
    const std::string_view header_record = source.ImportRows[0];
    if (header_record.find(source.Delimiter) == header_record.npos) {
      return refuse_file(concat(texts["Import_Info_NoDelimiterFound"], kCrLf,
                                texts["Import_Info_ImportNotAvailable"]),
                         MessageStyle::kCritical);
    }
    // Of cards with nothing in them no column has come, of which some could be chosen.
    if (source.made_table &&
        header_record.find_first_not_of(source.Delimiter) == header_record.npos) {
      return refuse_file(app_.text("Import_File_NoContacts"), MessageStyle::kExclamation);
    }
    const char delimiter = source.Delimiter.front();
    const std::vector<std::string> header = column_names(source.ImportRows, delimiter);
    fill_header_lists(header);
    if (std::any_of(header.begin(), header.end(), [](const auto& text) { return text.empty(); })) {
      app_.message_box(
          concat(texts["Import_Msg_HeaderFault"], kCrLf, texts["Import_Msg_ErrorFreeNoWarranted"]),
          MessageStyle::kInformation);
    }
    header_shown_ = true;
    header_ = header;
    show_table_facts();
    offer_suggestion(select_saved_columns(header));
  }).or_go_on();
}

void ColumnPage::refuse_file(std::string_view reason, MessageStyle style) {
  fill_header_lists({});
  app_.message_box(reason, style);
  shell_.wizard.CurrentPage = Page::kSource;
  shell_.cmdBack_Click();
}

void ColumnPage::fill_header_lists(const std::vector<std::string>& header) {
  const auto shared = std::make_shared<const std::vector<std::string>>(header);
  const UpdateLock lock(shell_);
  for (const auto& list : lstHeader) list->share_items(shared);
  if (header.empty()) return lstShow.set_columns({});
  const ImportSource& source = shell_.source;
  lstShow.set_columns(preview_columns(header, source.ImportRows, source.Delimiter.front()));
  preview_.show(source.ImportRows, source.Delimiter.front(), source.converted);
  lstShow.set_source(&preview_);
  // The count of the file's lines, which the status bar tells, has the header among them.
  labShow.set_caption(
      concat(app_.text("Import_Label_PreviewData"), " (", std::to_string(preview_.rows()), ")"));
}

bool ColumnPage::select_saved_columns(const std::vector<std::string>& header) {
  const MainTexts& texts = shell_.texts;
  std::vector<std::string> stored;
  stored.reserve(header.size());
  for (const std::string& text : header) stored.push_back(as_ini_gives_back(text));
  const SelectionMatch match = match_selection(header, stored, app_.settings.selections);
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    ListBox& list = lstHeader(static_cast<int>(kind));
    for (const int position : match.positions[kind]) list.set_selected(position, true);
  }
  const std::vector<std::string> areas = areas_to_check(
      match.unmatched, {texts["String_Name"], texts["String_Number"], texts["String_Address"]});
  if (areas.empty() || select_remembered(header)) return true;
  std::string message =
      concat(texts["Import_Msg_SelectionFail1"], kCrLf, texts["Import_Msg_SelectionFail2"], kCrLf,
             texts["Import_Msg_SelectionFail3"]);
  for (const std::string& area : areas) message.append(kCrLf).append(area);
  app_.message_box(message, MessageStyle::kInformation);
  return false;
}

bool ColumnPage::select_remembered(const std::vector<std::string>& header) {
  const auto choice = load_header_choice(app_.ini, header);
  if (!choice) return false;
  select_columns(choice->columns);
  if (on_remembered) on_remembered(*choice);
  return true;
}

void ColumnPage::select_columns(const std::array<std::vector<std::size_t>, kHeaderKinds>& columns) {
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    ListBox& list = lstHeader(static_cast<int>(kind));
    for (const int position : list.selected_positions()) list.set_selected(position, false);
    for (const std::size_t column : columns.at(kind)) {
      list.set_selected(static_cast<int>(column), true);
    }
  }
}

void ColumnPage::show_table_facts() {
  const ImportSource& source = shell_.source;
  std::string text;
  const auto add = [&](const std::vector<Finding>& findings) {
    for (const Finding& finding : findings) {
      if (!text.empty()) text += ' ';
      text += text_of(app_, finding);
    }
  };
  add(unchosen_findings(unchosen_numbers()));
  add(table_findings(table_facts(), source.lines));
  add(loss_findings(source.losses, source.lines));
  labTable.set_caption(text);
}

const TableFacts& ColumnPage::table_facts() {
  const ImportSource& source = shell_.source;
  if (!table_facts_) {
    table_facts_ = look_at_table(source.ImportRows, source.Delimiter.front(), source.made_table);
  }
  return *table_facts_;
}

/// The program or format that a file is known as; "" for none. An adapted file shows the columns
/// that it was made into, but users know it by what it was.
std::string_view ColumnPage::source_name() const {
  const ImportSource& source = shell_.source;
  const std::string_view name = known_export_name(header_);
  if (name.empty() || !source.converted) return name;
  if (source.facts.kind == FileKind::kVcard) return "vCard";
  return source.facts.labelled ? kLabelledExport : name;
}

void ColumnPage::offer_suggestion(bool fits) {
  const bool chosen = list(kNames).selected_count() > 0 || list(kNumbers).selected_count() > 0;
  const bool remembered = fits && chosen;
  const std::string_view name = remembered ? std::string_view() : source_name();
  suggestion_offered_ = !name.empty();
  if (suggestion_offered_) {
    cmdSuggest.set_caption(text_of(app_, Finding{"Import_Button_Suggestion", {std::string(name)}}));
  }
  show_below_lists();
}

bool ColumnPage::take_suggestion() {
  bool taken = false;
  procedure(app_.errors, "fMain.cmdSuggest_Click", {}, [&] {
    const auto suggestion =
        suggest_columns(header_, shell_.source.ImportRows, shell_.source.Delimiter.front());
    if (!suggestion) return;
    select_columns({suggestion->names, suggestion->numbers, suggestion->addresses[0],
                    suggestion->addresses[1]});
    if (on_suggestion) on_suggestion(*suggestion);
    suggestion_offered_ = false;
    numbers_ = count_numbers(header_, shell_.source.ImportRows, shell_.source.Delimiter.front());
    show_table_facts();
    show_below_lists();
    taken = true;
  }).or_go_on();
  return taken;
}

std::vector<ColumnNumbers> ColumnPage::unchosen_numbers() const {
  return quenda::unchosen_numbers(numbers_, chosen_columns(kNumbers));
}

void ColumnPage::lstHeader_Click(int index) {
  procedure(app_.errors, "fMain.lstHeader_Click", {index}, [&] {
    ListBox& list = lstHeader(index);
    const auto kind = static_cast<std::size_t>(index);
    if (kind == kNames || kind == kNumbers) {
      shell_.refresh_buttons();
    } else if (list.selected_count() > kMostColumns.at(kind)) {
      // One address column too many: the entry just selected gives way.
      list.set_selected(list.list_index(), false);
    }
    if (kind == kNumbers && !numbers_.empty()) {
      show_table_facts();
      show_below_lists();
    }
    ListColor();
  }).or_go_on();
}

void ColumnPage::ListColor() {
  procedure(app_.errors, "fMain.ListColor", {}, [&] {
    constexpr std::array kKinds = {ColumnKind::kName, ColumnKind::kNumber, ColumnKind::kAddress1,
                                   ColumnKind::kAddress2};
    std::vector<ColumnKind> kinds(lstShow.columns().size(), ColumnKind::kNone);
    // From the last kind to the first: a column chosen twice shows the more important choice.
    for (std::size_t kind = kHeaderKinds; kind-- > 0;) {
      for (const int position : list(kind).selected_positions()) {
        kinds.at(static_cast<std::size_t>(position)) = kKinds[kind];
      }
    }
    lstShow.set_column_kinds(kinds);
  }).or_go_on();
}

}  // namespace quenda

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "app/fMain.h"
#include "settings/app.h"
#include "sources/delimited_text.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/header_columns.h"

namespace quenda {
namespace {

/// As wide as the header and the first records want them.
std::vector<ListColumn> preview_columns(const std::vector<std::string>& header,
                                        const RecordTable& records, const std::string& delimiter) {
  constexpr std::size_t kRecordsLookedAt = 50;
  constexpr std::size_t kMark = 5;  // what a heading gets when its column is chosen
  std::vector<std::size_t> longest;
  longest.reserve(header.size());
  for (const std::string& heading : header) longest.push_back(heading.size() + kMark);
  for (std::size_t row = 1; row < std::min(records.size(), kRecordsLookedAt); ++row) {
    const auto fields = shown_fields(records[row], delimiter.front());
    for (std::size_t i = 0; i < std::min(fields.size(), longest.size()); ++i) {
      longest[i] = std::max(longest[i], fields[i].size());
    }
  }
  std::vector<ListColumn> columns;
  columns.reserve(header.size());
  for (std::size_t i = 0; i < header.size(); ++i) {
    columns.push_back({.heading = header[i], .width = preview_width(longest[i])});
  }
  return columns;
}

}  // namespace

void fMain::ImpHeader() {
  procedure(app_.errors, "fMain.ImpHeader", {}, [&] {
    const std::string_view header_record = source.ImportRows[0];
    if (header_record.find(source.Delimiter) == header_record.npos) {
      fill_header_lists({});
      app_.message_box(concat(texts.no_delimiter_found, kCrLf, texts.import_not_available),
                       MessageStyle::kCritical);
      wizard.CurrentPage = kFirstPage;
      cmdBack_Click();
      return;
    }
    const std::vector<std::string> header = shown_fields(
        source.ImportRows.padded_text(0, source.Delimiter.front()), source.Delimiter.front());
    fill_header_lists(header);
    if (std::any_of(header.begin(), header.end(), [](const auto& text) { return text.empty(); })) {
      app_.message_box(concat(texts.header_fault, kCrLf, texts.error_free_no_warranted),
                       MessageStyle::kInformation);
    }
    select_saved_columns(header);
  }).or_go_on();
}

void fMain::fill_header_lists(const std::vector<std::string>& header) {
  const UpdateLock lock(*this);
  const auto shared = std::make_shared<const std::vector<std::string>>(header);
  for (const auto& list : lstHeader) list->share_items(shared);
  if (header.empty()) return lstShow.set_columns({});
  lstShow.set_columns(preview_columns(header, source.ImportRows, source.Delimiter));
  preview_.show(source.ImportRows, source.Delimiter.front());
  lstShow.set_source(&preview_);
}

void fMain::select_saved_columns(const std::vector<std::string>& header) {
  const SelectionMatch match = match_selection(header, app_.settings.selections);
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    ListBox& list = lstHeader(static_cast<int>(kind));
    for (const int position : match.positions[kind]) list.set_selected(position, true);
  }
  const std::vector<std::string> areas =
      areas_to_check(match.unmatched, {texts.name, texts.number, texts.address});
  if (areas.empty()) return;
  std::string message =
      concat(texts.selection_fail1, kCrLf, texts.selection_fail2, kCrLf, texts.selection_fail3);
  for (const std::string& area : areas) message.append(kCrLf).append(area);
  app_.message_box(message, MessageStyle::kInformation);
}

void fMain::lstHeader_Click(int index) {
  procedure(app_.errors, "fMain.lstHeader_Click", {index}, [&] {
    ListBox& list = lstHeader(index);
    const auto kind = static_cast<std::size_t>(index);
    if (kind == kNames || kind == kNumbers) {
      cmdFor.set_enabled(columns_sufficient(lstHeader(kNames).selected_count(),
                                            lstHeader(kNumbers).selected_count()));
    } else if (list.selected_count() > kMostColumns.at(kind)) {
      // One address column too many: the entry just selected gives way.
      list.set_selected(list.list_index(), false);
    }
    ListColor();
  }).or_go_on();
}

void fMain::ListColor() {
  procedure(app_.errors, "fMain.ListColor", {}, [&] {
    constexpr std::array kKinds = {ColumnKind::kName, ColumnKind::kNumber, ColumnKind::kAddress1,
                                   ColumnKind::kAddress2};
    std::vector<ColumnKind> kinds(lstShow.columns().size(), ColumnKind::kNone);
    // From the last kind to the first: a column chosen twice shows the more important choice.
    for (std::size_t kind = kHeaderKinds; kind-- > 0;) {
      for (const int position : lstHeader(static_cast<int>(kind)).selected_positions()) {
        kinds.at(static_cast<std::size_t>(position)) = kKinds[kind];
      }
    }
    lstShow.set_column_kinds(kinds);
  }).or_go_on();
}

}  // namespace quenda

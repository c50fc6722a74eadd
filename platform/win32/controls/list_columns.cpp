#include "platform/win32/controls/list_columns.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/controls/column_fit.h"
#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/form_window.h"

namespace quenda {
namespace {

constexpr int kAroundCell = 210;     // twips
constexpr int kAroundHeading = 360;  // and the arrow
constexpr std::size_t kLongestCell = 260;

bool same_but_for_kinds(const std::vector<ListColumn>& a, const std::vector<ListColumn>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const ListColumn& one, const ListColumn& other) {
                      return one.heading == other.heading && one.width == other.width;
                    });
}

int width_of(HDC dc, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
  return static_cast<int>(size.cx);
}

}  // namespace

int ListColumns::dpi() const { return form_.place().dpi(); }

std::wstring ListColumns::heading(std::size_t column) const {
  return column < shown_.size() ? shown_[column].heading : std::wstring();
}

int ListColumns::room(HWND window) const {
  RECT area{};
  GetWindowRect(window, &area);
  const auto dpi = static_cast<UINT>(form_.place().screen_dpi());
  const LRESULT page = SendMessageW(window, LVM_GETCOUNTPERPAGE, 0, 0);
  const bool scrolls = list_.count() > static_cast<std::size_t>(page);
  return static_cast<int>(area.right - area.left) -
         (scrolls ? GetSystemMetricsForDpi(SM_CXVSCROLL, dpi) : 0) -
         2 * GetSystemMetricsForDpi(SM_CXEDGE, dpi);
}

std::vector<ListColumns::Shown> ListColumns::wanted(HWND window) const {
  const auto& columns = list_.columns();
  std::vector<ColumnWidth> asked(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    asked[i].designed = pixels_of(columns[i].width, dpi());
    if (i < chosen_.size()) asked[i].chosen = pixels_of(chosen_[i], dpi());
  }
  const std::vector<int> widths = widths_in(asked, room(window));
  std::vector<Shown> wanted(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    wanted[i] = {std::wstring(column_mark(columns[i].kind)), widths[i]};
    wanted[i].heading += wide(columns[i].heading);
  }
  return wanted;
}

/// A file may have thousands of columns, and the native heading places all of them anew at each
/// change.
void ListColumns::show(HWND window) {
  forget_choices_of_others();
  std::vector<Shown> wanted = this->wanted(window);
  const auto& sorted_by = list_.order().key();
  if (wanted == shown_ && sorted_by == shown_sorted_by_) return;
  auto* const header = from_lparam<HWND__>(SendMessageW(window, LVM_GETHEADER, 0, 0));
  const bool hidden = (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) == 0;
  SendMessageW(window, WM_SETREDRAW, FALSE, 0);
  SendMessageW(header, WM_SETREDRAW, FALSE, 0);
  std::size_t shown = shown_.size();
  while (shown > wanted.size()) SendMessageW(window, LVM_DELETECOLUMN, --shown, 0);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    LVCOLUMNW column{};
    column.mask = LVCF_SUBITEM;
    if (i >= shown || shown_[i].heading != wanted[i].heading) column.mask |= LVCF_TEXT;
    if (i >= shown || shown_[i].width != wanted[i].width) column.mask |= LVCF_WIDTH;
    if (column.mask == LVCF_SUBITEM) continue;
    column.cx = wanted[i].width;
    column.iSubItem = static_cast<int>(i);
    column.pszText = wanted[i].heading.data();
    SendMessageW(window, i < shown ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, i, as_lparam(&column));
  }
  shown_ = std::move(wanted);
  shown_sorted_by_ = sorted_by;
  if (list_.sortable()) mark_sorted(header);
  SendMessageW(header, WM_SETREDRAW, TRUE, 0);
  SendMessageW(window, WM_SETREDRAW, TRUE, 0);
  if (hidden) ShowWindow(window, SW_HIDE);  // to draw again is to be visible
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

/// The arrow in the heading of the column that the rows are sorted by.
void ListColumns::mark_sorted(HWND header) const {
  const auto& key = list_.order().key();
  for (std::size_t i = 0; i < list_.columns().size(); ++i) {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    SendMessageW(header, HDM_GETITEMW, i, as_lparam(&item));
    item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
    if (key && key->column == i) item.fmt |= key->descending ? HDF_SORTDOWN : HDF_SORTUP;
    SendMessageW(header, HDM_SETITEMW, i, as_lparam(&item));
  }
}

void ListColumns::forget_choices_of_others() {
  if (same_but_for_kinds(known_, list_.columns())) return;
  known_ = list_.columns();
  chosen_.assign(known_.size(), 0);
}

void ListColumns::choose(std::size_t column, int pixels) {
  for (std::size_t i = 0; i < column; ++i) {
    if (chosen_[i] == 0) chosen_[i] = twips_of(shown_[i].width, dpi());
  }
  chosen_[column] = twips_of(std::max(pixels, 1), dpi());
}

bool ListColumns::take_user_width(std::size_t column, int pixels) {
  // A mere click on a border ends here, too.
  if (column >= shown_.size() || shown_[column].width == pixels) return false;
  choose(column, pixels);
  shown_[column].width = pixels;
  return true;
}

int ListColumns::width_of_contents(HWND window, std::size_t column) const {
  const WindowDc dc(window);
  const Selected font(dc.get(), form_.place().fonts().plain.get());
  int width = width_of(dc.get(), shown_[column].heading) + pixels_of(kAroundHeading, dpi());
  const auto ask = [window](UINT message) {
    return static_cast<std::size_t>(SendMessageW(window, message, 0, 0));
  };
  // The row at the foot is seen in part.
  const auto positions =
      positions_to_fit(list_.count(), ask(LVM_GETTOPINDEX), ask(LVM_GETCOUNTPERPAGE) + 1);
  for (const std::size_t at : positions) {
    const std::string text = list_.cell(list_.order().row_at(at), column);
    const std::wstring drawn = wide(std::string_view(text).substr(0, kLongestCell));
    width = std::max(width, width_of(dc.get(), drawn) + pixels_of(kAroundCell, dpi()));
  }
  return std::min(width, std::max(room(window), pixels_of(kAroundHeading, dpi())));
}

void ListColumns::fit(HWND window, std::size_t column) {
  if (column >= shown_.size()) return;
  choose(column, width_of_contents(window, column));
  show(window);
}

void ListColumns::fit_all(HWND window) {
  for (std::size_t i = 0; i < shown_.size(); ++i) choose(i, width_of_contents(window, i));
  show(window);
}

}  // namespace quenda

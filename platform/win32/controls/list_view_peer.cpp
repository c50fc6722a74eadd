#include "platform/win32/controls/list_view_peer.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/text_win32.h"
#include "platform/win32/windows/dark_frame.h"
#include "platform/win32/windows/form_window.h"
#include "text/text.h"

namespace quenda {
namespace {

class NativeListView : public PeerOf<ListView> {
 public:
  using PeerOf::PeerOf;

  LRESULT on_notify(NMHDR& notice) override {
    const LPARAM lparam = as_lparam(&notice);
    switch (notice.code) {
      case LVN_GETDISPINFOW:
        give_text(from_lparam<NMLVDISPINFOW>(lparam)->item);
        return 0;
      case LVN_ODFINDITEMW:
        return find(*from_lparam<NMLVFINDITEMW>(lparam));
      case LVN_ITEMCHANGED:
        take_change(*from_lparam<NMLISTVIEW>(lparam));
        return 0;
      case LVN_COLUMNCLICK:
        typed().take_user_heading(
            static_cast<std::size_t>(from_lparam<NMLISTVIEW>(lparam)->iSubItem));
        return 0;
      case LVN_KEYDOWN:
        if (from_lparam<NMLVKEYDOWN>(lparam)->wVKey == 'C' && GetKeyState(VK_CONTROL) < 0) {
          typed().take_user_copy();
          return 0;
        }
        typed().take_user_key_down(
            static_cast<std::int16_t>(from_lparam<NMLVKEYDOWN>(lparam)->wVKey));
        return 0;
      case NM_DBLCLK:
        if (from_lparam<NMITEMACTIVATE>(lparam)->iItem >= 0) typed().take_user_double_click();
        return 0;
      case NM_CUSTOMDRAW:
        return draw(*from_lparam<NMLVCUSTOMDRAW>(lparam));
      default:
        return 0;
    }
  }

  void apply_font() override {
    NativeControl::apply_font();
    refresh(Aspect::kColumns);
  }

  void apply_colors() override {
    const auto color = [&](Tone tone) {
      return static_cast<LPARAM>(native(form().colors()[tone]));
    };
    send(LVM_SETBKCOLOR, 0, color(Tone::kField));
    send(LVM_SETTEXTBKCOLOR, 0, color(Tone::kField));
    send(LVM_SETTEXTCOLOR, 0, color(Tone::kFieldText));
    set_dark_scroll_bars(window(), form().dark());
    NativeControl::apply_colors();
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    DWORD style = LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL;
    if (!typed().sortable()) style |= LVS_NOSORTHEADER;
    // Where something can be done with the selected row, it is seen from elsewhere, too; in a mere
    // preview it would only hide the colours of the columns.
    if (typed().on_double_click) style |= LVS_SHOWSELALWAYS;
    return {WC_LISTVIEWW, true, style, WS_EX_CLIENTEDGE};
  }

  void prepare() override {
    constexpr DWORD kStyles = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP;
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, kStyles, kStyles);
    if (form().dark()) apply_colors();
  }

  void show(Aspect aspect) override {
    switch (aspect) {
      case Aspect::kColumns:
        show_columns();
        break;
      case Aspect::kRows:
        send(LVM_SETITEMCOUNT, typed().count(), LVSICF_NOSCROLL);
        // Whether there is a scroll bar decides how much room the columns have.
        if (!shown_columns_.empty()) show_columns();
        InvalidateRect(window(), nullptr, FALSE);
        show_selection();
        break;
      case Aspect::kIndex:
        show_selection();
        break;
      default:
        break;
    }
  }

  /// Enter belongs to a list that listens to keys, not to the form's default button.
  bool on_message(UINT message, WPARAM& /*wparam*/, LPARAM lparam, LRESULT& result) override {
    if (message == WM_SIZE && !shown_columns_.empty()) show_columns();
    if (message == WM_NOTIFY && form().dark()) {
      const auto& notice = *from_lparam<NMHDR>(lparam);
      if (notice.code != NM_CUSTOMDRAW || notice.hwndFrom != header()) return false;
      result = draw_heading(*from_lparam<NMCUSTOMDRAW>(lparam));
      return true;
    }
    const auto* const key = from_lparam<MSG>(lparam);
    if (message != WM_GETDLGCODE || key == nullptr || key->wParam != VK_RETURN) return false;
    if (!typed().on_key_down) return false;
    result = DLGC_WANTALLKEYS;
    return true;
  }

 private:
  struct ShownColumn {
    std::wstring heading;
    int width = 0;  // in pixels
    friend bool operator==(const ShownColumn&, const ShownColumn&) = default;
  };

  void give_text(LVITEMW& item) const {
    if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
    const std::size_t row = typed().order().row_at(static_cast<std::size_t>(item.iItem));
    const auto column = static_cast<std::size_t>(item.iSubItem);
    item.pszText[0] = L'\0';
    if (row >= typed().count() || column >= typed().columns().size()) return;
    const std::string text = typed().cell(row, column);
    const auto room = static_cast<std::size_t>(item.cchTextMax) - 1;
    const std::wstring shown = wide(std::string_view(text).substr(0, room));
    *std::copy(shown.begin(), shown.end(), item.pszText) = L'\0';
  }

  /// The position of the next row whose first cell begins with the letters typed into the list, -1
  /// for none.
  [[nodiscard]] LRESULT find(const NMLVFINDITEMW& sought) const {
    if ((sought.lvfi.flags & LVFI_STRING) == 0 || typed().columns().empty()) return -1;
    const std::string start = nearest_1252(sought.lvfi.psz);
    const std::size_t count = typed().count();
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t at = (static_cast<std::size_t>(std::max(sought.iStart, 0)) + i) % count;
      const std::string text = typed().cell(typed().order().row_at(at), 0);
      if (equal_ignoring_case(std::string_view(text).substr(0, start.size()), start)) {
        return static_cast<LRESULT>(at);
      }
    }
    return -1;
  }

  [[nodiscard]] LRESULT draw(NMLVCUSTOMDRAW& drawn) const {
    const DWORD stage = drawn.nmcd.dwDrawStage;
    // First every row is asked for, then every cell of it; both are wished for by the same value.
    if (stage == CDDS_PREPAINT || stage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (stage == (CDDS_ITEMPREPAINT | CDDS_SUBITEM)) tint(drawn);
    return CDRF_DODEFAULT;
  }

  void tint(NMLVCUSTOMDRAW& drawn) const {
    const auto column = static_cast<std::size_t>(drawn.iSubItem);
    if (column >= typed().columns().size()) return;
    const ColumnKind kind = typed().columns()[column].kind;
    const ColorScheme& colors = form().colors();
    drawn.clrTextBk = native(colors[tone_of(kind)]);
    drawn.clrText = native(colors[text_tone_of(kind)]);
    const auto row = static_cast<WPARAM>(drawn.nmcd.dwItemSpec);
    if (!form().dark() || send(LVM_GETITEMSTATE, row, LVIS_SELECTED) == 0) return;
    // The system would take its own light colours for a selection without the focus.
    const bool focus = GetFocus() == window();
    if (!focus && (GetWindowLongPtrW(window(), GWL_STYLE) & LVS_SHOWSELALWAYS) == 0) return;
    drawn.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
    drawn.clrTextBk = native(colors[focus ? Tone::kSelected : Tone::kRestingSelection]);
    drawn.clrText = native(colors[focus ? Tone::kSelectedText : Tone::kFieldText]);
  }

  [[nodiscard]] HWND header() const { return from_lparam<HWND__>(send(LVM_GETHEADER)); }

  /// A heading by itself, and what no heading covers.
  [[nodiscard]] LRESULT draw_heading(const NMCUSTOMDRAW& drawn) const {
    const DarkPen with = pen(drawn.hdc);
    switch (drawn.dwDrawStage) {
      case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW | CDRF_NOTIFYPOSTPAINT;
      case CDDS_ITEMPREPAINT: {
        const auto column = static_cast<std::size_t>(drawn.dwItemSpec);
        const auto& key = typed().order().key();
        const int sorted = !key || key->column != column ? 0 : key->descending ? 1 : -1;
        const bool known = column < shown_columns_.size();
        quenda::draw_heading(with, drawn.rc, known ? shown_columns_[column].heading : L"", sorted);
        return CDRF_SKIPDEFAULT;
      }
      case CDDS_POSTPAINT: {
        RECT rest{};
        GetClientRect(header(), &rest);
        RECT last{};
        const LRESULT count = SendMessageW(header(), HDM_GETITEMCOUNT, 0, 0);
        SendMessageW(header(), HDM_GETITEMRECT, static_cast<WPARAM>(count - 1), as_lparam(&last));
        rest.left = last.right;
        if (rest.left < rest.right) quenda::draw_heading(with, rest, L"", 0);
        return CDRF_DODEFAULT;
      }
      default:
        return CDRF_DODEFAULT;
    }
  }

  /// The list is never asked which row is selected: it would look through all of them.
  void take_change(const NMLISTVIEW& change) {
    const bool was = (change.uOldState & LVIS_SELECTED) != 0;
    const bool is = (change.uNewState & LVIS_SELECTED) != 0;
    if (was == is) return;
    const bool this_one = change.iItem == -1 || change.iItem == shown_at_;
    if (is) {
      shown_at_ = change.iItem;
    } else if (this_one) {
      shown_at_ = -1;
    }
    if (muted()) return;
    form().names().changed();
    typed().take_user_select(shown_at_ < 0 ? -1
                                           : static_cast<int>(typed().order().row_at(
                                                 static_cast<std::size_t>(shown_at_))));
  }

  /// The widths asked for, in pixels. Columns that leave room share it, so that a larger window
  /// cuts no names.
  [[nodiscard]] std::vector<int> column_widths() const {
    std::vector<int> widths;
    int sum = 0;
    for (const ListColumn& column : typed().columns()) {
      widths.push_back(pixels_of(column.width, form().place().dpi()));
      sum += widths.back();
    }
    RECT area{};
    GetWindowRect(window(), &area);
    const auto dpi = static_cast<UINT>(form().place().screen_dpi());
    const bool scrolls = typed().count() > static_cast<std::size_t>(send(LVM_GETCOUNTPERPAGE));
    const int room = static_cast<int>(area.right - area.left) -
                     (scrolls ? GetSystemMetricsForDpi(SM_CXVSCROLL, dpi) : 0) -
                     2 * GetSystemMetricsForDpi(SM_CXEDGE, dpi);
    if (sum == 0 || sum >= room) return widths;
    // Edges, not widths, are rounded: a sum that is a pixel too large brings a scroll bar.
    int designed = 0;
    int edge = 0;
    for (int& width : widths) {
      designed += width;
      width = MulDiv(designed, room, sum) - edge;
      edge += width;
    }
    return widths;
  }

  [[nodiscard]] std::vector<ShownColumn> wanted_columns() const {
    const auto& columns = typed().columns();
    const std::vector<int> widths = column_widths();
    std::vector<ShownColumn> wanted(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
      wanted[i] = {std::wstring(column_mark(columns[i].kind)), widths[i]};
      wanted[i].heading += wide(columns[i].heading);
    }
    return wanted;
  }

  /// Only what differs is sent: a file may have thousands of columns, and the native heading places
  /// all of them anew at each change.
  void show_columns() {
    std::vector<ShownColumn> wanted = wanted_columns();
    const auto& sorted_by = typed().order().key();
    if (wanted == shown_columns_ && sorted_by == shown_sorted_by_) return;
    const HWND header = this->header();
    const bool hidden = (GetWindowLongPtrW(window(), GWL_STYLE) & WS_VISIBLE) == 0;
    send(WM_SETREDRAW, FALSE);
    SendMessageW(header, WM_SETREDRAW, FALSE, 0);
    std::size_t shown = shown_columns_.size();
    while (shown > wanted.size()) send(LVM_DELETECOLUMN, --shown);
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      LVCOLUMNW column{};
      column.mask = LVCF_SUBITEM;
      if (i >= shown || shown_columns_[i].heading != wanted[i].heading) column.mask |= LVCF_TEXT;
      // A width that the user has dragged stays until the control asks for another.
      if (i >= shown || shown_columns_[i].width != wanted[i].width) column.mask |= LVCF_WIDTH;
      if (column.mask == LVCF_SUBITEM) continue;
      column.cx = wanted[i].width;
      column.iSubItem = static_cast<int>(i);
      column.pszText = wanted[i].heading.data();
      send(i < shown ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, i, as_lparam(&column));
    }
    shown_columns_ = std::move(wanted);
    shown_sorted_by_ = sorted_by;
    if (typed().sortable()) mark_sorted(header);
    SendMessageW(header, WM_SETREDRAW, TRUE, 0);
    send(WM_SETREDRAW, TRUE);
    if (hidden) ShowWindow(window(), SW_HIDE);  // to draw again is to be visible
    RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  }

  /// The arrow in the heading of the column that the rows are sorted by.
  void mark_sorted(HWND header) const {
    const auto& key = typed().order().key();
    for (std::size_t i = 0; i < typed().columns().size(); ++i) {
      HDITEMW item{};
      item.mask = HDI_FORMAT;
      SendMessageW(header, HDM_GETITEMW, i, as_lparam(&item));
      item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
      if (key && key->column == i) item.fmt |= key->descending ? HDF_SORTDOWN : HDF_SORTUP;
      SendMessageW(header, HDM_SETITEMW, i, as_lparam(&item));
    }
  }

  void show_selection() {
    const int row = typed().selected();
    const int wanted =
        row < 0 ? -1 : static_cast<int>(typed().order().position_of(static_cast<std::size_t>(row)));
    if (shown_at_ == wanted) return;
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    if (shown_at_ >= 0) {
      send(LVM_SETITEMSTATE, static_cast<WPARAM>(shown_at_), as_lparam(&item));
    }
    shown_at_ = wanted;
    if (wanted < 0) return;
    item.state = item.stateMask;
    send(LVM_SETITEMSTATE, static_cast<WPARAM>(wanted), as_lparam(&item));
    send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(wanted), FALSE);
  }

  int shown_at_ = -1;                       // position of the selected row
  std::vector<ShownColumn> shown_columns_;  // as last asked for
  std::optional<ViewOrder::Key> shown_sorted_by_;
};

}  // namespace

std::unique_ptr<NativeControl> make_list_view(FormWindow& form, ListView& list) {
  return std::make_unique<NativeListView>(form, list);
}

}  // namespace quenda

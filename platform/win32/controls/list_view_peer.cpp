#include "platform/win32/controls/list_view_peer.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/win32/controls/list_columns.h"
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
        columns_.show(window());
        break;
      case Aspect::kRows:
        send(LVM_SETITEMCOUNT, typed().count(), LVSICF_NOSCROLL);
        // Whether there is a scroll bar decides how much room the columns have.
        if (columns_.shown()) columns_.show(window());
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

  bool on_message(UINT message, WPARAM& wparam, LPARAM lparam, LRESULT& result) override {
    switch (message) {
      case WM_SIZE:
        if (columns_.shown()) columns_.show(window());
        return false;
      case WM_NOTIFY:
        return from_lparam<NMHDR>(lparam)->hwndFrom == header() &&
               on_heading(*from_lparam<NMHDR>(lparam), result);
      case WM_KEYDOWN:
        // The system's own way measures each of the rows.
        if (wparam != VK_ADD || GetKeyState(VK_CONTROL) >= 0) return false;
        columns_.fit_all(window());
        return true;
      case WM_GETDLGCODE: {
        // Enter belongs to a list that listens to keys, not to the form's default button.
        const auto* const key = from_lparam<MSG>(lparam);
        if (key == nullptr || key->wParam != VK_RETURN || !typed().on_key_down) return false;
        result = DLGC_WANTALLKEYS;
        return true;
      }
      default:
        return false;
    }
  }

 private:
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

  /// What the user does with the headings, and how they are drawn.
  bool on_heading(NMHDR& notice, LRESULT& result) {
    const auto& column = *from_lparam<NMHEADERW>(as_lparam(&notice));
    switch (notice.code) {
      case HDN_DIVIDERDBLCLICKW:
        columns_.fit(window(), static_cast<std::size_t>(column.iItem));
        return true;
      case HDN_ENDTRACKW:
        if (column.pitem == nullptr || (column.pitem->mask & HDI_WIDTH) == 0) return false;
        // The heading takes the width itself, after this.
        if (columns_.take_user_width(static_cast<std::size_t>(column.iItem), column.pitem->cxy)) {
          refresh(Aspect::kColumns);
        }
        return false;
      case NM_CUSTOMDRAW:
        if (!form().dark()) return false;
        result = draw_heading(*from_lparam<NMCUSTOMDRAW>(as_lparam(&notice)));
        return true;
      default:
        return false;
    }
  }

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
        quenda::draw_heading(with, drawn.rc, columns_.heading(column), sorted);
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

  int shown_at_ = -1;  // position of the selected row
  ListColumns columns_{form(), typed()};
};

}  // namespace

std::unique_ptr<NativeControl> make_list_view(FormWindow& form, ListView& list) {
  return std::make_unique<NativeListView>(form, list);
}

}  // namespace quenda

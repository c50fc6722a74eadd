#include "platform/win32/controls/list_peers.h"

#include <algorithm>
#include <string>

#include "platform/win32/text_win32.h"
#include "platform/win32/windows/dark_frame.h"
#include "platform/win32/windows/form_window.h"

namespace quenda {
namespace {

/// Every click or press of the space bar turns one entry on or off, so several entries are chosen
/// without holding a key down.
class NativeListBox : public PeerOf<ListBox> {
 public:
  using PeerOf::PeerOf;

  void on_command(UINT code) override {
    if (code == LBN_SELCHANGE && !muted()) take_selection();
  }
  void apply_colors() override {
    set_dark_scroll_bars(window(), form().dark());
    NativeControl::apply_colors();
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    return {WC_LISTBOXW, true,
            WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_MULTIPLESEL | LBS_NOINTEGRALHEIGHT,
            WS_EX_CLIENTEDGE};
  }

  void show(Aspect aspect) override {
    if (aspect == Aspect::kItems) show_items();
    if (aspect == Aspect::kItems || aspect == Aspect::kSelection) show_selection();
  }

  void prepare() override {
    if (form().dark()) set_dark_scroll_bars(window(), true);
  }

  bool on_message(UINT message, WPARAM& /*wparam*/, LPARAM /*lparam*/,
                  LRESULT& /*result*/) override {
    if (message == WM_KEYDOWN || message == WM_CHAR) {
      // Not every system gives notice of a choice made by the space bar.
      PostMessageW(window(), kLookAgain, 0, 0);
    }
    if (message != kLookAgain) return false;
    take_selection();
    return true;
  }

 private:
  static constexpr UINT kLookAgain = WM_APP + 1;

  void take_selection() {
    form().names().changed();
    for (int i = 0; i < typed().count(); ++i) {
      const bool selected = shows_selected(i);
      if (selected == typed().selected(i)) continue;
      typed().take_user_selection(i, selected);
      // The control can have refused: it is the one to say what is selected.
      refresh(Aspect::kSelection);
    }
  }

  [[nodiscard]] bool shows_selected(int position) const {
    return send(LB_GETSEL, static_cast<WPARAM>(position)) > 0;
  }

  void show_items() {
    send(WM_SETREDRAW, FALSE);
    send(LB_RESETCONTENT);
    const WindowDc dc(window());
    const Selected font(dc.get(), form().place().fonts().plain.get());
    constexpr WPARAM kMargin = 6;
    LONG widest = 0;
    for (int i = 0; i < typed().count(); ++i) {
      const std::wstring text = wide(typed().item(i));
      send(LB_ADDSTRING, 0, as_lparam(text.c_str()));
      SIZE size{};
      GetTextExtentPoint32W(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
      widest = std::max(widest, size.cx);
    }
    send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest) + kMargin);
    send(WM_SETREDRAW, TRUE);
    InvalidateRect(window(), nullptr, TRUE);
  }

  void show_selection() {
    for (int i = 0; i < typed().count(); ++i) {
      if (shows_selected(i) == typed().selected(i)) continue;
      send(LB_SETSEL, typed().selected(i) ? TRUE : FALSE, i);
    }
  }
};

class NativeComboList : public PeerOf<ComboList> {
 public:
  using PeerOf::PeerOf;

  void on_command(UINT code) override {
    if (code != CBN_SELCHANGE || muted()) return;
    typed().take_user_index(static_cast<int>(send(CB_GETCURSEL)));
    refresh(Aspect::kIndex);
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    return {WC_COMBOBOXW, true, WS_VSCROLL | CBS_DROPDOWNLIST};
  }
  /// The system makes its list with it, a window of the screen's own.
  [[nodiscard]] bool can_wait() const override { return true; }

  void show(Aspect aspect) override {
    if (aspect == Aspect::kItems) {
      send(CB_RESETCONTENT);
      for (const std::string& item : typed().items()) {
        send(CB_ADDSTRING, 0, as_lparam(wide(item).c_str()));
      }
    }
    if (aspect == Aspect::kItems || aspect == Aspect::kIndex) {
      send(CB_SETCURSEL, static_cast<WPARAM>(typed().list_index()));
    }
  }

  bool on_message(UINT message, WPARAM& /*wparam*/, LPARAM /*lparam*/, LRESULT& result) override {
    if (!form().dark()) return false;
    switch (message) {
      case WM_PAINT:
        paint_by(&draw_combo);
        return true;
      case WM_ERASEBKGND:
        result = 1;
        return true;
      case WM_MOUSEMOVE:
      case WM_MOUSELEAVE:
      case WM_SETFOCUS:
      case WM_KILLFOCUS:
      case WM_ENABLE:
      case WM_CAPTURECHANGED:
      case CB_SETCURSEL:
      case CB_SHOWDROPDOWN:
        // What the system draws at once is drawn over.
        InvalidateRect(window(), nullptr, FALSE);
        return false;
      default:
        return false;
    }
  }
};

}  // namespace

std::unique_ptr<NativeControl> make_list_box(FormWindow& form, ListBox& list) {
  return std::make_unique<NativeListBox>(form, list);
}

std::unique_ptr<NativeControl> make_combo_list(FormWindow& form, ComboList& list) {
  return std::make_unique<NativeComboList>(form, list);
}

}  // namespace quenda

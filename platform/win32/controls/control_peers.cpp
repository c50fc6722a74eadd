#include "platform/win32/controls/control_peers.h"

#include <array>
#include <string>

#include "platform/controls/simple_controls.h"
#include "platform/win32/controls/label_parts.h"
#include "platform/win32/controls/list_peers.h"
#include "platform/win32/controls/list_view_peer.h"
#include "platform/win32/controls/panel_window.h"
#include "platform/win32/controls/progress_peer.h"
#include "platform/win32/controls/splitter_peer.h"
#include "platform/win32/controls/text_box_peer.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/access_keys.h"
#include "platform/win32/windows/form_window.h"

namespace quenda {
namespace {

/// A screen reader that listens says what has changed in a window.
void announce(HWND window, LONG child) {
  constexpr DWORD kLiveRegionChanged = 0x8019;
  for (const DWORD event : {DWORD{EVENT_OBJECT_NAMECHANGE}, kLiveRegionChanged}) {
    NotifyWinEvent(event, window, OBJID_CLIENT, child);
  }
}

class NativeLabel : public PeerOf<Label> {
 public:
  using PeerOf::PeerOf;
  void apply_font() override {
    if (!typed().heading()) return NativeControl::apply_font();
    const HFONT font = form().place().fonts().heading.get();
    send(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    const DWORD prefix = typed().shows_data() ? SS_NOPREFIX : 0;
    const DWORD side = typed().at_end() ? SS_RIGHT : SS_LEFT;
    const DWORD cut = typed().one_line() ? SS_ENDELLIPSIS : 0;
    return {WC_STATICW, false, side | prefix | cut, 0, form().captions().of(typed())};
  }
  [[nodiscard]] bool can_wait() const override { return typed().caption().empty(); }
  void show(Aspect aspect) override {
    if (aspect == Aspect::kCaption) set_window_text(form().captions().of(typed()));
    if (typed().announced()) say_news();
  }
  bool on_message(UINT message, WPARAM& /*wparam*/, LPARAM /*lparam*/, LRESULT& result) override {
    const auto* const label = dynamic_cast<const PartsLabel*>(&typed());
    if (message != WM_PAINT || label == nullptr || label->parts().empty()) return false;
    draw_parts(window(), label->parts(), form().place().fonts().plain.get());
    result = 0;
    return true;
  }

 private:
  void say_news() {
    std::string now = IsWindowVisible(window()) != 0 ? typed().caption() : std::string();
    if (now == said_) return;
    said_ = std::move(now);
    if (!said_.empty()) announce(window(), CHILDID_SELF);
  }

  std::string said_;
};

/// A group box where there is a caption to show, else a plain area. Its controls are its children,
/// so hiding or disabling it does so for all of them.
class NativeFrame : public PeerOf<Frame> {
 public:
  using PeerOf::PeerOf;

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    constexpr DWORD kParent = WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    if (typed().caption().empty()) return {kPanelClass, false, kParent, WS_EX_CONTROLPARENT};
    return {WC_BUTTONW, false, BS_GROUPBOX | kParent, WS_EX_CONTROLPARENT,
            without_access_key(typed().caption())};
  }
  void show(Aspect aspect) override {
    if (aspect == Aspect::kCaption) set_window_text(without_access_key(typed().caption()));
    if (aspect == Aspect::kVisible && typed().visible()) form().page_shown(*this);
  }
  bool on_message(UINT message, WPARAM& wparam, LPARAM lparam, LRESULT& result) override {
    if (message == WM_ERASEBKGND) {
      RECT area{};
      GetClientRect(window(), &area);
      auto* const dc = from_lparam<HDC__>(static_cast<LPARAM>(wparam));
      FillRect(dc, &area, brush_in(dc, form().colors()[tone_behind(control())]));
      result = 1;
      return true;
    }
    if (message == WM_PAINT && form().dark() && !typed().caption().empty()) {
      paint_by(&draw_group);
      return true;
    }
    return forward_to_parent(window(), message, wparam, lparam, result);
  }
};

/// A control of the system's button class, which asks before it draws itself.
template <class T>
class ButtonPeer : public PeerOf<T> {
 public:
  using PeerOf<T>::PeerOf;
  LRESULT on_notify(NMHDR& notice) override {
    if (notice.code != NM_CUSTOMDRAW || !this->form().dark()) return CDRF_DODEFAULT;
    const auto& drawn = *from_lparam<NMCUSTOMDRAW>(as_lparam(&notice));
    if (drawn.dwDrawStage != CDDS_PREPAINT) return CDRF_DODEFAULT;
    draw_button(this->pen(drawn.hdc), this->window());
    return CDRF_SKIPDEFAULT;
  }
};

class NativeButton : public ButtonPeer<Button> {
 public:
  using ButtonPeer::ButtonPeer;
  void on_command(UINT code) override {
    if (code == BN_CLICKED && !muted()) typed().take_user_click();
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    const bool usual = form().form().default_button == &typed();
    const DWORD style = usual ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    return {WC_BUTTONW, true, style, 0, form().captions().of(typed())};
  }
  void show(Aspect aspect) override {
    if (aspect != Aspect::kCaption) return;
    set_window_text(form().captions().of(typed()));
    if (!shown_.empty() && shown_ != typed().caption()) form().content_changed();
    shown_ = typed().caption();
  }

 private:
  std::string shown_;
};

class NativeCheckBox : public ButtonPeer<CheckBox> {
 public:
  using ButtonPeer::ButtonPeer;
  void on_command(UINT code) override {
    if (code != BN_CLICKED || muted()) return;
    typed().take_user_click();
    refresh(Aspect::kValue);
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    return {WC_BUTTONW, true, BS_CHECKBOX | BS_MULTILINE, 0, form().captions().of(typed())};
  }
  void show(Aspect aspect) override {
    if (aspect == Aspect::kCaption) set_window_text(form().captions().of(typed()));
    if (aspect == Aspect::kValue) send(BM_SETCHECK, typed().ticked() ? BST_CHECKED : BST_UNCHECKED);
  }
};

class NativeOptionButton : public ButtonPeer<OptionButton> {
 public:
  using ButtonPeer::ButtonPeer;
  void on_command(UINT code) override {
    if (code != BN_CLICKED || muted()) return;
    typed().take_user_click();
    refresh(Aspect::kValue);
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    return {WC_BUTTONW, true, BS_AUTORADIOBUTTON | BS_MULTILINE, 0, form().captions().of(typed())};
  }
  void show(Aspect aspect) override {
    if (aspect == Aspect::kCaption) set_window_text(form().captions().of(typed()));
    if (aspect != Aspect::kValue) return;
    // Telling an empty button that it is empty would take it out of the tab order.
    const bool shown = send(BM_GETCHECK) == BST_CHECKED;
    if (shown != typed().chosen()) {
      send(BM_SETCHECK, typed().chosen() ? BST_CHECKED : BST_UNCHECKED);
    }
  }
};

class NativeStatusBar : public PeerOf<StatusBar> {
 public:
  using PeerOf::PeerOf;

  /// Along the foot of the window, whatever its size.
  void place() override {
    const int height = pixels_of(control().place().height, form().place().dpi());
    send(SB_SETMINHEIGHT, static_cast<WPARAM>(height > 8 ? height - 4 : height));
    send(WM_SIZE);
    RECT area{};
    GetClientRect(GetParent(window()), &area);
    const int width = area.right;
    const std::array<int, 3> edges = {width * 22 / 100, width * 60 / 100, -1};
    send(SB_SETPARTS, edges.size(), as_lparam(edges.data()));
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    const DWORD grip = form().form().resizable() ? SBARS_SIZEGRIP : 0;
    return {STATUSCLASSNAMEW, false, CCS_BOTTOM | grip};
  }
  void show(Aspect aspect) override {
    if (aspect != Aspect::kText) return;
    if (form().dark()) InvalidateRect(window(), nullptr, FALSE);
    for (int number = 1; number <= 3; ++number) {
      std::string& shown = shown_.at(static_cast<std::size_t>(number - 1));
      if (shown == typed().panel(number)) continue;
      shown = typed().panel(number);
      send(SB_SETTEXTW, static_cast<WPARAM>(number - 1), as_lparam(wide(shown).c_str()));
      // What happens is told here alone.
      announce(window(), number);
    }
  }
  bool on_message(UINT message, WPARAM& /*wparam*/, LPARAM /*lparam*/, LRESULT& result) override {
    if (!form().dark() || (message != WM_PAINT && message != WM_ERASEBKGND)) return false;
    if (message == WM_PAINT) paint_by(&draw_status);
    result = 1;
    return true;
  }

 private:
  std::array<std::string, 3> shown_;
};

}  // namespace

std::unique_ptr<NativeControl> make_native_control(FormWindow& form, Control& control) {
  switch (control.kind()) {
    case ControlKind::kLabel:
      return std::make_unique<NativeLabel>(form, static_cast<Label&>(control));
    case ControlKind::kFrame:
      return std::make_unique<NativeFrame>(form, static_cast<Frame&>(control));
    case ControlKind::kButton:
      return std::make_unique<NativeButton>(form, static_cast<Button&>(control));
    case ControlKind::kCheckBox:
      return std::make_unique<NativeCheckBox>(form, static_cast<CheckBox&>(control));
    case ControlKind::kOptionButton:
      return std::make_unique<NativeOptionButton>(form, static_cast<OptionButton&>(control));
    case ControlKind::kTextBox:
      return make_text_box(form, static_cast<TextBox&>(control));
    case ControlKind::kListBox:
      return make_list_box(form, static_cast<ListBox&>(control));
    case ControlKind::kComboList:
      return make_combo_list(form, static_cast<ComboList&>(control));
    case ControlKind::kListView:
      return make_list_view(form, static_cast<ListView&>(control));
    case ControlKind::kPicture:
      return make_progress(form, static_cast<PictureBox&>(control));
    case ControlKind::kSplitter:
      return make_splitter(form, static_cast<Splitter&>(control));
    case ControlKind::kStatusBar:
      return std::make_unique<NativeStatusBar>(form, static_cast<StatusBar&>(control));
    case ControlKind::kTimer:
      break;
  }
  return make_timer(form, static_cast<Timer&>(control));
}

}  // namespace quenda

#include "platform/win32/controls/splitter_peer.h"

#include <optional>
#include <string>
#include <utility>

#include "platform/win32/controls/panel_window.h"
#include "platform/win32/windows/form_window.h"
#include "text/text.h"

namespace quenda {
namespace {

std::optional<BorderMove> move_by(WPARAM key) {
  switch (key) {
    case VK_UP:
      return BorderMove::kBack;
    case VK_DOWN:
      return BorderMove::kOn;
    case VK_PRIOR:
      return BorderMove::kFarBack;
    case VK_NEXT:
      return BorderMove::kFarOn;
    case VK_HOME:
      return BorderMove::kToStart;
    case VK_END:
      return BorderMove::kToEnd;
    default:
      return std::nullopt;
  }
}

class NativeSplitter : public PeerOf<Splitter> {
 public:
  using PeerOf::PeerOf;

  [[nodiscard]] Spoken spoken() const override {
    const int share = share_of(room(), border_at(room(), typed().share()), kWholeShare / 2);
    return {typed().spoken_name(), kSeparatorRole, concat(std::to_string(share / 10), " %")};
  }

 protected:
  [[nodiscard]] WindowSpec spec() const override {
    // A button that lies over its end stays whole.
    register_splitter_class();
    return {kSplitterClass, true, WS_CLIPSIBLINGS};
  }

  void show(Aspect aspect) override {
    if (aspect != Aspect::kValue) return;
    form().lay_out();
    NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, window(), OBJID_CLIENT, CHILDID_SELF);
  }

  bool on_message(UINT message, WPARAM& wparam, LPARAM lparam, LRESULT& result) override {
    switch (message) {
      case WM_GETDLGCODE:
        result = DLGC_WANTARROWS;
        return true;
      case WM_KEYDOWN:
        if (const auto move = move_by(wparam)) {
          const int step = pixels_of(kStep, form().place().dpi());
          move_to(share_after(room(), typed().share(), *move, step));
        }
        return false;
      case WM_SETFOCUS:
      case WM_KILLFOCUS:
        InvalidateRect(window(), nullptr, FALSE);
        return false;
      case WM_ERASEBKGND:
        result = 1;
        return true;
      case WM_LBUTTONDOWN:
        held_ = Held{GET_Y_LPARAM(lparam), typed().share()};
        SetCapture(window());
        return true;
      case WM_MOUSEMOVE:
        if (held_) drag(GET_Y_LPARAM(lparam));
        return true;
      case WM_LBUTTONUP:
        held_.reset();
        ReleaseCapture();
        return true;
      case WM_CAPTURECHANGED:
        if (const auto held = std::exchange(held_, std::nullopt)) move_to(held->share);
        return true;
      case WM_LBUTTONDBLCLK:
        move_to(0);
        return true;
      case WM_PAINT:
        paint();
        return true;
      default:
        return false;
    }
  }

 private:
  static constexpr int kStep = 150;  // twips
  static constexpr long kSeparatorRole = 0x15;

  /// What a press of the mouse button holds.
  struct Held {
    int at = 0;     // pixels from the upper edge of the border
    int share = 0;  // where it lay
  };

  [[nodiscard]] BorderRoom room() const {
    return room_of(typed(), form().place().dpi(), form().place().growth());
  }

  void drag(int y) {
    const int border = border_at(room(), typed().share());
    move_to(share_of(room(), border + y - held_->at, typed().share()));
  }

  /// At once: the border has to stay under the pointer.
  void move_to(int share) {
    if (share == typed().share()) return;
    typed().take_user_share(share);
    form().lay_out();
    form().show_changes();
    RedrawWindow(form().window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  }

  /// A small grip in the middle, and a frame while the keys move it.
  void paint() const {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(window(), &paint);
    if (dc == nullptr) return;
    RECT area{};
    GetClientRect(window(), &area);
    FillRect(dc, &area, brush_in(dc, form().colors()[Tone::kFace]));
    const int dpi = form().place().dpi();
    const int width = pixels_of(kGripWidth, dpi);
    const int height = pixels_of(kGripHeight, dpi);
    RECT grip{};
    grip.left = (area.right - width) / 2;
    grip.top = (area.bottom - height) / 2;
    grip.right = grip.left + width;
    grip.bottom = grip.top + height;
    FillRect(dc, &grip, brush_in(dc, form().colors()[Tone::kGrip]));
    InflateRect(&area, 0, -1);
    if (GetFocus() == window()) DrawFocusRect(dc, &area);
    EndPaint(window(), &paint);
  }

  static constexpr int kGripWidth = 480;  // twips
  static constexpr int kGripHeight = 30;

  std::optional<Held> held_;
};

}  // namespace

std::unique_ptr<NativeControl> make_splitter(FormWindow& form, Splitter& splitter) {
  return std::make_unique<NativeSplitter>(form, splitter);
}

bool lets_go_of_border(const MSG& message) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE) return false;
  const HWND holder = GetCapture();
  wchar_t name[32] = {};
  if (holder == nullptr || GetClassNameW(holder, name, 32) == 0) return false;
  if (std::wstring_view(name) != kSplitterClass) return false;
  ReleaseCapture();
  return true;
}

}  // namespace quenda

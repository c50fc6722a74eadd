#include "platform/win32/controls/progress_peer.h"

#include <optional>
#include <string>

#include "platform/controls/progress_text.h"
#include "platform/win32/controls/panel_window.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/form_window.h"

namespace quenda {
namespace {

class NativeProgress : public PeerOf<PictureBox> {
 public:
  using PeerOf::PeerOf;

 protected:
  [[nodiscard]] WindowSpec spec() const override { return {kPictureClass, false, WS_BORDER}; }

  void show(Aspect aspect) override {
    if (aspect == Aspect::kVisible) begun_ = GetTickCount64();
    if (aspect == Aspect::kVisible || aspect == Aspect::kValue) {
      form().show_progress(typed().visible() ? std::optional(typed().percent()) : std::nullopt);
    }
    if (aspect != Aspect::kValue) return;
    // The text of the window is what a screen reader says.
    set_window_text(percentage());
    InvalidateRect(window(), nullptr, FALSE);
    UpdateWindow(window());
  }

  bool on_message(UINT message, WPARAM& /*wparam*/, LPARAM /*lparam*/, LRESULT& result) override {
    if (message == WM_ERASEBKGND) {
      result = 1;
      return true;
    }
    if (message != WM_PAINT) return false;
    PAINTSTRUCT paint{};
    if (BeginPaint(window(), &paint) != nullptr) {
      paint_buffered(paint.hdc);
      EndPaint(window(), &paint);
    }
    return true;
  }

 private:
  [[nodiscard]] std::string percentage() const {
    return progress_text(typed().percent(), static_cast<long long>(GetTickCount64() - begun_));
  }

  /// Paints aside and copies the finished picture, so that nothing flickers.
  void paint_buffered(HDC screen) const {
    RECT area{};
    GetClientRect(window(), &area);
    const MemoryDc aside(CreateCompatibleDC(screen));
    const Bitmap picture(CreateCompatibleBitmap(screen, area.right, area.bottom));
    if (!aside || !picture) return;
    const Selected bitmap(aside.get(), picture.get());
    const Selected font(aside.get(), form().place().fonts().plain.get());
    RECT done = area;
    done.right = MulDiv(area.right, typed().percent(), 100);
    RECT open = area;
    open.left = done.right;
    paint_part(aside.get(), done, area, Tone::kSelected, Tone::kSelectedText);
    paint_part(aside.get(), open, area, Tone::kField, Tone::kFieldText);
    BitBlt(screen, 0, 0, area.right, area.bottom, aside.get(), 0, 0, SRCCOPY);
  }

  /// One of the two parts of the bar; the text runs across both and changes its colour where they
  /// meet.
  void paint_part(HDC dc, const RECT& part, RECT whole, Tone background, Tone text) const {
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, part.left, part.top, part.right, part.bottom);
    FillRect(dc, &part, brush_in(dc, form().colors()[background]));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, native(form().colors()[text]));
    const std::wstring shown = wide(percentage());
    DrawTextW(dc, shown.c_str(), static_cast<int>(shown.size()), &whole,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    RestoreDC(dc, saved);
  }

  ULONGLONG begun_ = GetTickCount64();
};

class NativeTimer : public PeerOf<Timer> {
 public:
  using PeerOf::PeerOf;

 protected:
  [[nodiscard]] WindowSpec spec() const override { return {kPanelClass, false, 0}; }
  [[nodiscard]] bool can_wait() const override { return true; }

  void show(Aspect aspect) override {
    if (aspect == Aspect::kVisible) ShowWindow(window(), SW_HIDE);
    if (aspect != Aspect::kEnabled) return;
    if (typed().enabled()) {
      SetTimer(window(), kTimer, static_cast<UINT>(typed().interval()), nullptr);
    } else {
      KillTimer(window(), kTimer);
    }
  }

  bool on_message(UINT message, WPARAM& /*wparam*/, LPARAM /*lparam*/,
                  LRESULT& /*result*/) override {
    if (message != WM_TIMER) return false;
    typed().take_tick();
    return true;
  }

 private:
  static constexpr UINT_PTR kTimer = 1;
};

}  // namespace

std::unique_ptr<NativeControl> make_progress(FormWindow& form, PictureBox& picture) {
  return std::make_unique<NativeProgress>(form, picture);
}

std::unique_ptr<NativeControl> make_timer(FormWindow& form, Timer& timer) {
  return std::make_unique<NativeTimer>(form, timer);
}

}  // namespace quenda

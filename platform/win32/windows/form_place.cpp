#include "platform/win32/windows/form_place.h"

#include <algorithm>
#include <utility>

namespace quenda {
namespace {

constexpr int kIconResource = 1;

/// Moves a window's place into the working area of the nearest screen: a place remembered from a
/// screen that is gone must not hide the window.
RECT on_screen(RECT place) {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  if (GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &screen) == 0) {
    return place;
  }
  const RECT& area = screen.rcWork;
  OffsetRect(&place, std::min(area.right - place.right, 0L),
             std::min(area.bottom - place.bottom, 0L));
  OffsetRect(&place, std::max(area.left - place.left, 0L), std::max(area.top - place.top, 0L));
  return place;
}

Icon load_icon(int width_metric, int height_metric, int dpi) {
  const auto size = static_cast<UINT>(dpi);
  return Icon(
      static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kIconResource),
                                    IMAGE_ICON, GetSystemMetricsForDpi(width_metric, size),
                                    GetSystemMetricsForDpi(height_metric, size), LR_DEFAULTCOLOR)));
}

}  // namespace

int FormPlace::fitting_scale(HWND window, int dpi) const {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  if (GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &screen) == 0) {
    return 100;
  }
  const SIZE around = border(window);
  const auto percent = [](LONG room, int designed) {
    return MulDiv(static_cast<int>(room), 100, std::max(designed, 1));
  };
  const int width = form_.outer_width() > 0 ? form_.outer_width() : form_.place().width;
  const int across =
      percent(screen.rcWork.right - screen.rcWork.left - around.cx, pixels_of(width, dpi));
  const int down = percent(screen.rcWork.bottom - screen.rcWork.top - around.cy,
                           pixels_of(form_.place().height, dpi));
  return std::max(std::min(across, down), 100);
}

void FormPlace::scale(HWND window, int dpi) {
  screen_dpi_ = dpi;
  const int wanted = text_scale(dpi);
  const int scale = wanted > 100 ? std::min(wanted, fitting_scale(window, dpi)) : wanted;
  dpi_ = MulDiv(dpi, scale, 100);
  fonts_.emplace(dpi, scale);
}

/// What the title bar and the borders take at the window's DPI.
SIZE FormPlace::border(HWND window) const {
  RECT area{};
  AdjustWindowRectExForDpi(&area, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE)),
                           static_cast<UINT>(screen_dpi_));
  return {area.right - area.left, area.bottom - area.top};
}

SIZE FormPlace::outer_size(HWND window) const {
  const SIZE around = border(window);
  const int outer = form_.outer_width();
  const LONG width =
      outer > 0 ? pixels_of(outer, dpi_) : pixels_of(form_.place().width, dpi_) + around.cx;
  return {width, pixels_of(form_.place().height, dpi_) + around.cy};
}

/// Positions are kept at the system's DPI, whatever screen the window is on, so that a remembered
/// position leads back to the same point.
void FormPlace::place(HWND window) {
  const bool was_shown = std::exchange(shown_, false);
  const auto system = static_cast<int>(GetDpiForSystem());
  RECT place{};
  place.left = pixels_of(form_.place().left, system);
  place.top = pixels_of(form_.place().top, system);
  SetWindowPos(window, nullptr, place.left, place.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  scale(window, static_cast<int>(GetDpiForWindow(window)));
  const SIZE size = outer_size(window);
  RECT owner{};
  if (owner_ != nullptr && form_.place().left == 0 && form_.place().top == 0 &&
      GetWindowRect(owner_, &owner) != 0) {
    place.left = (owner.left + owner.right - size.cx) / 2;
    place.top = owner.top + (owner.bottom - owner.top - size.cy) / 2;
  }
  place.right = place.left + size.cx;
  place.bottom = place.top + size.cy;
  place = on_screen(place);
  SetWindowPos(window, nullptr, place.left, place.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  shown_ = was_shown;
}

void FormPlace::on_dpi(HWND window, int dpi, const RECT& place) {
  const int before = dpi_;
  scale(window, dpi);
  resize(window, place, before);
}

void FormPlace::on_settings(HWND window) {
  const int before = dpi_;
  scale(window, screen_dpi_);
  RECT place{};
  if (dpi_ == before || GetWindowRect(window, &place) == 0) return;
  place.right = place.left;
  place.bottom = place.top;
  resize(window, place, before);
}

/// At least as large as designed and by how much the user has made it larger.
void FormPlace::resize(HWND window, const RECT& place, int dpi_before) {
  const Growth grown{MulDiv(growth_.across, dpi_, dpi_before),
                     MulDiv(growth_.down, dpi_, dpi_before)};
  const SIZE least = outer_size(window);
  SetWindowPos(window, nullptr, place.left, place.top,
               std::max(place.right - place.left, least.cx + grown.across),
               std::max(place.bottom - place.top, least.cy + grown.down),
               SWP_NOZORDER | SWP_NOACTIVATE);
  on_size(window);
}

void FormPlace::on_size(HWND window) {
  RECT area{};
  if (IsIconic(window) != 0 || GetClientRect(window, &area) == 0) return;
  growth_ = {};
  if (!form_.resizable()) return;
  const SIZE designed = outer_size(window);
  const SIZE around = border(window);
  growth_ = {static_cast<int>(area.right + around.cx - designed.cx),
             static_cast<int>(area.bottom + around.cy - designed.cy)};
}

void FormPlace::on_move(HWND window) const {
  RECT place{};
  if (!shown_ || IsIconic(window) != 0 || IsZoomed(window) != 0) return;
  if (GetWindowRect(window, &place) == 0) return;
  const auto system = static_cast<int>(GetDpiForSystem());
  form_.take_user_position(twips_of(static_cast<int>(place.left), system),
                           twips_of(static_cast<int>(place.top), system));
}

void FormPlace::limit_size(HWND window, MINMAXINFO& limits) const {
  if (!form_.resizable() || !fonts_) return;
  const SIZE least = outer_size(window);
  limits.ptMinTrackSize = {least.cx, least.cy};
}

void WindowIcons::show(HWND window, int dpi) {
  Icon in_task_bar = load_icon(SM_CXICON, SM_CYICON, dpi);
  Icon in_title = load_icon(SM_CXSMICON, SM_CYSMICON, dpi);
  SendMessageW(window, WM_SETICON, ICON_BIG, as_lparam(in_task_bar.get()));
  SendMessageW(window, WM_SETICON, ICON_SMALL, as_lparam(in_title.get()));
  // Those before are out of use only now.
  big_ = std::move(in_task_bar);
  small_ = std::move(in_title);
}

}  // namespace quenda

#include "platform/win32/windows/look.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace quenda {

namespace {

constexpr int kNormalScale = 100;
constexpr int kLargestScale = 225;

LOGFONTW message_font(int dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                             static_cast<UINT>(dpi));
  return metrics.lfMessageFont;
}

/// How large the font is against the 9 points that the forms are designed for, in percent.
int scale_of(const LOGFONTW& font, int dpi) {
  constexpr int kPixelsPerInch = 96;
  constexpr int kDesignedPixels = 12;
  return MulDiv(std::abs(font.lfHeight), kNormalScale * kPixelsPerInch, kDesignedPixels * dpi);
}

}  // namespace

int text_scale(int dpi) {
  DWORD wanted = kNormalScale;
  DWORD size = sizeof wanted;
  RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Accessibility", L"TextScaleFactor",
               RRF_RT_REG_DWORD, nullptr, &wanted, &size);
  const int set = static_cast<int>(std::min<DWORD>(wanted, kLargestScale));
  return std::clamp(std::max(set, scale_of(message_font(dpi), dpi)), kNormalScale, kLargestScale);
}

Fonts::Fonts(int dpi, int scale) {
  LOGFONTW usual = message_font(dpi);
  // Whether the system has put the wish for larger text into its font already is up to it.
  const int there = std::max(scale_of(usual, dpi), kNormalScale);
  usual.lfHeight = MulDiv(usual.lfHeight, scale, there);
  plain.reset(CreateFontIndirectW(&usual));
  LOGFONTW large = usual;
  large.lfHeight = large.lfHeight * 5 / 4;
  large.lfWeight = FW_BOLD;
  heading.reset(CreateFontIndirectW(&large));
}

int system_color_behind(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
      for (const Control* at = &control; at != nullptr; at = at->parent()) {
        if (at->back_color() == BackColor::kWindow) return COLOR_WINDOW;
      }
      return COLOR_3DFACE;
    default:
      return control.takes_input() && control.back_color() == BackColor::kWindow ? COLOR_WINDOW
                                                                                 : COLOR_3DFACE;
  }
}

COLORREF column_color(ColumnKind kind) {
  if (high_contrast()) return GetSysColor(COLOR_WINDOW);
  switch (kind) {
    case ColumnKind::kName:
      return RGB(255, 247, 204);
    case ColumnKind::kNumber:
      return RGB(216, 240, 216);
    case ColumnKind::kAddress1:
      return RGB(214, 232, 250);
    case ColumnKind::kAddress2:
      return RGB(240, 222, 246);
    default:
      return GetSysColor(COLOR_WINDOW);
  }
}

std::wstring_view column_mark(ColumnKind kind) {
  switch (kind) {
    case ColumnKind::kName:
      return L"[N] ";
    case ColumnKind::kNumber:
      return L"[#] ";
    case ColumnKind::kAddress1:
      return L"[A1] ";
    case ColumnKind::kAddress2:
      return L"[A2] ";
    default:
      return L"";
  }
}

bool high_contrast() {
  HIGHCONTRASTW setting{};
  setting.cbSize = sizeof setting;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) != 0 &&
         (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace quenda

#include "platform/win32/windows/look.h"

#include <algorithm>
#include <array>
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

bool high_contrast() {
  HIGHCONTRASTW setting{};
  setting.cbSize = sizeof setting;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) != 0 &&
         (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

bool wants_dark() {
  DWORD light = 1;
  DWORD size = sizeof light;
  RegGetValueW(HKEY_CURRENT_USER,
               L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
               L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
  return light == 0;
}

SystemColors system_colors() {
  constexpr std::array kIndexes = {COLOR_3DFACE,    COLOR_3DSHADOW,     COLOR_BTNTEXT,
                                   COLOR_WINDOW,    COLOR_WINDOWTEXT,   COLOR_GRAYTEXT,
                                   COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT};
  SystemColors colors;
  static_assert(colors.size() == kIndexes.size());
  for (std::size_t i = 0; i < kIndexes.size(); ++i) {
    const COLORREF color = GetSysColor(kIndexes[i]);
    colors[i] = {GetRValue(color), GetGValue(color), GetBValue(color)};
  }
  return colors;
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

ColorScheme wanted_colors() {
  const SystemColors system = system_colors();
  return color_scheme(look_mode(high_contrast(), wants_dark(), system), system);
}

COLORREF native(Color color) { return RGB(color.red, color.green, color.blue); }

HBRUSH brush_in(HDC dc, Color color) {
  SetDCBrushColor(dc, native(color));
  return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

Tone tone_behind(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
      for (const Control* at = &control; at != nullptr; at = at->parent()) {
        if (at->back_color() == BackColor::kWindow) return Tone::kField;
      }
      return Tone::kFace;
    default:
      return control.takes_input() && control.back_color() == BackColor::kWindow ? Tone::kField
                                                                                 : Tone::kFace;
  }
}

Tone tone_of(ColumnKind kind) {
  switch (kind) {
    case ColumnKind::kName:
      return Tone::kName;
    case ColumnKind::kNumber:
      return Tone::kNumber;
    case ColumnKind::kAddress1:
      return Tone::kAddress1;
    case ColumnKind::kAddress2:
      return Tone::kAddress2;
    default:
      return Tone::kField;
  }
}

Tone text_tone_of(ColumnKind kind) {
  return kind == ColumnKind::kNone ? Tone::kFieldText : Tone::kChosenText;
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

}  // namespace quenda

#include "platform/win32/controls/dark_paint.h"

#include <algorithm>
#include <array>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/look.h"

namespace quenda {
namespace {

int scaled(int pixels, int dpi) { return MulDiv(pixels, dpi, 96); }

/// Fills with one colour and outlines with another.
void outline(const DarkPen& pen, const RECT& area, Color inside, Color line, int rounding) {
  const int saved = SaveDC(pen.dc);
  SelectObject(pen.dc, GetStockObject(DC_PEN));
  SelectObject(pen.dc, GetStockObject(DC_BRUSH));
  SetDCPenColor(pen.dc, native(line));
  SetDCBrushColor(pen.dc, native(inside));
  RoundRect(pen.dc, area.left, area.top, area.right, area.bottom, rounding, rounding);
  RestoreDC(pen.dc, saved);
}

void write(const DarkPen& pen, RECT area, const std::wstring& text, Color color, UINT format) {
  const int saved = SaveDC(pen.dc);
  SelectObject(pen.dc, pen.font);
  SetBkMode(pen.dc, TRANSPARENT);
  SetTextColor(pen.dc, native(color));
  DrawTextW(pen.dc, text.c_str(), static_cast<int>(text.size()), &area, format);
  RestoreDC(pen.dc, saved);
}

/// How large a text is that may take several lines of a width.
RECT measured(const DarkPen& pen, RECT area, const std::wstring& text, UINT format) {
  const Selected font(pen.dc, pen.font);
  DrawTextW(pen.dc, text.c_str(), static_cast<int>(text.size()), &area, format | DT_CALCRECT);
  return area;
}

/// Whether the user works with the mouse and wants no letters underlined, or no focus framed.
bool hides(HWND window, LRESULT cue) {
  return (SendMessageW(window, WM_QUERYUISTATE, 0, 0) & cue) != 0;
}

Color text_color(const DarkPen& pen, HWND window, Tone usual) {
  return pen.scheme[IsWindowEnabled(window) != 0 ? usual : Tone::kGreyText];
}

void frame_focus(const DarkPen& pen, HWND window, const RECT& area) {
  if (GetFocus() != window || hides(window, UISF_HIDEFOCUS)) return;
  SetTextColor(pen.dc, RGB(255, 255, 255));
  SetBkColor(pen.dc, RGB(0, 0, 0));
  DrawFocusRect(pen.dc, &area);
}

/// A line through points, as thick as a mark has to be.
template <std::size_t Count>
void stroke(const DarkPen& pen, const std::array<POINT, Count>& points, Color color) {
  const HPEN thick = CreatePen(PS_SOLID, std::max(scaled(2, pen.dpi), 1), native(color));
  const HGDIOBJ before = SelectObject(pen.dc, thick);
  Polyline(pen.dc, points.data(), static_cast<int>(Count));
  SelectObject(pen.dc, before);
  DeleteObject(thick);
}

/// A triangle that points down, or up.
void draw_arrow(const DarkPen& pen, POINT middle, bool down, Color color) {
  const LONG half = scaled(4, pen.dpi);
  const LONG rise = down ? half / 2 : -half / 2;
  stroke(pen,
         std::array<POINT, 3>{{{middle.x - half, middle.y - rise},
                               {middle.x, middle.y + rise},
                               {middle.x + half, middle.y - rise}}},
         color);
}

/// The mark of a check box or an option button.
void draw_box(const DarkPen& pen, const RECT& box, bool option, bool checked, Color mark) {
  const int size = static_cast<int>(box.right - box.left);
  outline(pen, box, pen.scheme[Tone::kField], pen.scheme[Tone::kGrip], option ? size : 0);
  if (!checked) return;
  if (option) {
    RECT dot = box;
    InflateRect(&dot, -size / 4, -size / 4);
    return outline(pen, dot, mark, mark, size);
  }
  const auto at = [&](int x, int y) {
    return POINT{box.left + size * x / 12, box.top + size * y / 12};
  };
  stroke(pen, std::array<POINT, 3>{{at(3, 6), at(5, 8), at(9, 3)}}, mark);
}

void draw_choice(const DarkPen& pen, HWND button, RECT area, bool option) {
  const std::wstring text = window_text(button);
  const int size = scaled(13, pen.dpi);
  RECT box = area;
  box.top = (area.top + area.bottom - size) / 2;
  box.right = box.left + size;
  box.bottom = box.top + size;
  const Color color = text_color(pen, button, Tone::kText);
  draw_box(pen, box, option, SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED, color);
  area.left = box.right + scaled(4, pen.dpi);
  const UINT format = DT_LEFT | DT_WORDBREAK | (hides(button, UISF_HIDEACCEL) ? DT_HIDEPREFIX : 0U);
  RECT place = measured(pen, area, text, format);
  OffsetRect(&place, 0, (area.bottom - place.bottom) / 2);
  write(pen, place, text, color, format);
  InflateRect(&place, 1, 1);
  frame_focus(pen, button, place);
}

}  // namespace

void draw_push(const DarkPen& pen, RECT area, const Push& push) {
  const Tone inside = push.pressed ? Tone::kPressedButton
                      : push.hot   ? Tone::kHotButton
                                   : Tone::kButton;
  outline(pen, area, pen.scheme[inside], pen.scheme[push.usual ? Tone::kSelected : Tone::kLine],
          scaled(4, pen.dpi));
}

void draw_button(const DarkPen& pen, HWND button) {
  RECT area{};
  GetClientRect(button, &area);
  FillRect(pen.dc, &area, brush_in(pen.dc, pen.scheme[Tone::kFace]));
  const LONG_PTR type = GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK;
  if (type == BS_CHECKBOX || type == BS_AUTORADIOBUTTON) {
    return draw_choice(pen, button, area, type == BS_AUTORADIOBUTTON);
  }
  const LRESULT state = SendMessageW(button, BM_GETSTATE, 0, 0);
  draw_push(pen, area,
            {.usual = type == BS_DEFPUSHBUTTON,
             .hot = (state & BST_HOT) != 0,
             .pressed = (state & BST_PUSHED) != 0});
  write(pen, area, window_text(button), text_color(pen, button, Tone::kText),
        DT_CENTER | DT_VCENTER | DT_SINGLELINE |
            (hides(button, UISF_HIDEACCEL) ? DT_HIDEPREFIX : 0U));
  InflateRect(&area, -scaled(3, pen.dpi), -scaled(3, pen.dpi));
  frame_focus(pen, button, area);
}

void draw_group(const DarkPen& pen, HWND group) {
  RECT area{};
  GetClientRect(group, &area);
  const std::wstring text = window_text(group);
  FillRect(pen.dc, &area, brush_in(pen.dc, pen.scheme[Tone::kFace]));
  RECT caption = area;
  caption.left += scaled(9, pen.dpi);
  caption = measured(pen, caption, text, DT_LEFT | DT_SINGLELINE);
  RECT frame = area;
  frame.top = (caption.top + caption.bottom) / 2;
  outline(pen, frame, pen.scheme[Tone::kFace], pen.scheme[Tone::kLine], 0);
  RECT gap = caption;
  InflateRect(&gap, scaled(2, pen.dpi), 0);
  FillRect(pen.dc, &gap, brush_in(pen.dc, pen.scheme[Tone::kFace]));
  write(pen, caption, text, text_color(pen, group, Tone::kText), DT_LEFT | DT_SINGLELINE);
}

void draw_combo(const DarkPen& pen, HWND combo) {
  RECT area{};
  GetClientRect(combo, &area);
  POINT pointer{};
  GetCursorPos(&pointer);
  const bool enabled = IsWindowEnabled(combo) != 0;
  FillRect(pen.dc, &area, brush_in(pen.dc, pen.scheme[Tone::kFace]));
  draw_push(pen, area,
            {.hot = enabled && WindowFromPoint(pointer) == combo,
             .pressed = SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0});
  const Color color = text_color(pen, combo, Tone::kText);
  const LONG arrow = area.right - scaled(10, pen.dpi);
  draw_arrow(pen, {arrow, (area.top + area.bottom) / 2}, true, color);
  RECT place = area;
  place.left += scaled(5, pen.dpi);
  place.right = arrow - scaled(8, pen.dpi);
  write(pen, place, window_text(combo), color,
        DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  InflateRect(&area, -scaled(2, pen.dpi), -scaled(2, pen.dpi));
  frame_focus(pen, combo, area);
}

void draw_heading(const DarkPen& pen, const RECT& area, const std::wstring& text, int sorted) {
  FillRect(pen.dc, &area, brush_in(pen.dc, pen.scheme[Tone::kHeading]));
  RECT line = area;
  line.left = line.right - 1;
  FillRect(pen.dc, &line, brush_in(pen.dc, pen.scheme[Tone::kLine]));
  const Color color = pen.scheme[Tone::kText];
  if (sorted != 0) {
    draw_arrow(pen, {(area.left + area.right) / 2, area.top + scaled(4, pen.dpi)}, sorted > 0,
               color);
  }
  RECT place = area;
  InflateRect(&place, -scaled(6, pen.dpi), 0);
  write(pen, place, text, color,
        DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void draw_status(const DarkPen& pen, HWND bar) {
  RECT area{};
  GetClientRect(bar, &area);
  FillRect(pen.dc, &area, brush_in(pen.dc, pen.scheme[Tone::kFace]));
  RECT line = area;
  line.bottom = line.top + 1;
  FillRect(pen.dc, &line, brush_in(pen.dc, pen.scheme[Tone::kLine]));
  const LRESULT count = SendMessageW(bar, SB_GETPARTS, 0, 0);
  for (LRESULT part = 0; part < count; ++part) {
    const auto number = static_cast<WPARAM>(part);
    RECT place{};
    SendMessageW(bar, SB_GETRECT, number, as_lparam(&place));
    std::wstring text(LOWORD(SendMessageW(bar, SB_GETTEXTLENGTHW, number, 0)) + 1U, L'\0');
    SendMessageW(bar, SB_GETTEXTW, number, as_lparam(text.data()));
    text.pop_back();
    if (part > 0) {
      RECT parting = place;
      parting.right = parting.left + 1;
      FillRect(pen.dc, &parting, brush_in(pen.dc, pen.scheme[Tone::kLine]));
    }
    place.left += scaled(4, pen.dpi);
    write(pen, place, text, pen.scheme[Tone::kText],
          DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  }
  if ((GetWindowLongPtrW(bar, GWL_STYLE) & SBARS_SIZEGRIP) == 0) return;
  const int dot = scaled(2, pen.dpi);
  for (int i = 1; i <= 3; ++i) {
    for (int j = 1; i + j <= 4; ++j) {
      const RECT at = {area.right - 2 * i * dot, area.bottom - 2 * j * dot,
                       area.right - (2 * i - 1) * dot, area.bottom - (2 * j - 1) * dot};
      FillRect(pen.dc, &at, brush_in(pen.dc, pen.scheme[Tone::kGrip]));
    }
  }
}

void draw_border(const ColorScheme& scheme, HWND window, Color inside) {
  const bool edge = (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
  if (!edge && (GetWindowLongPtrW(window, GWL_STYLE) & WS_BORDER) == 0) return;
  RECT area{};
  GetWindowRect(window, &area);
  OffsetRect(&area, -area.left, -area.top);
  const HDC dc = GetWindowDC(window);
  if (dc == nullptr) return;
  FrameRect(dc, &area, brush_in(dc, scheme[Tone::kLine]));
  if (edge) {
    const int rings = GetSystemMetrics(SM_CXEDGE);
    for (int ring = 1; ring < rings; ++ring) {
      InflateRect(&area, -1, -1);
      FrameRect(dc, &area, brush_in(dc, inside));
    }
  }
  ReleaseDC(window, dc);
}

}  // namespace quenda

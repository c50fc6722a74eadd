#pragma once

#include "platform/controls/color_scheme.h"
#include "platform/controls/control.h"
#include "platform/controls/list_view.h"
#include "platform/win32/handles.h"

// How the window looks: the user's message font and colours.
namespace quenda {

/// By how much larger than designed the user wants to read, in percent: what the setting for larger
/// text says, or a larger message font. At least 100.
int text_scale(int dpi);

/// The user's message font for one DPI and a scale in percent, and a larger bold one for headings.
struct Fonts {
  Fonts(int dpi, int scale);
  Font plain;
  Font heading;
};

/// As the user wants windows to look now.
ColorScheme wanted_colors();
COLORREF native(Color color);
/// Of that colour, for the next piece of drawing in the surface.
HBRUSH brush_in(HDC dc, Color color);

/// What is behind a control. A label or box without a colour of its own takes that of the frame it
/// lies on; a field that takes no input has that of the window.
Tone tone_behind(const Control& control);

/// The background of a preview column, and what stands on it.
Tone tone_of(ColumnKind kind);
Tone text_tone_of(ColumnKind kind);

/// The mark before a chosen column's heading: the colour alone says nothing to a user who cannot
/// see or tell it.
std::wstring_view column_mark(ColumnKind kind);

}  // namespace quenda

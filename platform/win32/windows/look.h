#pragma once

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

/// The background behind a control, a system colour. A label or box without a colour of its own
/// takes that of the frame it lies on; a field that takes no input is grey.
int system_color_behind(const Control& control);

/// The background of a preview column chosen for something; the window colour for the others, and
/// for all while the user has asked for high contrast.
COLORREF column_color(ColumnKind kind);

/// The mark before a chosen column's heading: the colour alone says nothing to a user who cannot
/// see or tell it.
std::wstring_view column_mark(ColumnKind kind);

bool high_contrast();

}  // namespace quenda

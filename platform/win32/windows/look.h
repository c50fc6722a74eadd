#pragma once

#include "platform/controls/control.h"
#include "platform/controls/list_view.h"
#include "platform/win32/handles.h"

// How the window looks: the user's message font and colours.
namespace quenda {

/// The user's message font in the size for one DPI, and a larger bold one for headings.
struct Fonts {
  explicit Fonts(int dpi);
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

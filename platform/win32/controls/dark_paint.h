#pragma once

#include <string>

#include "platform/controls/color_scheme.h"
#include "platform/win32/windows_headers.h"

// Controls in the colours of a dark window. The system has no dark ones to offer to a program: its
// controls stay what they are and do what they do, and only their pictures come from here.
namespace quenda {

/// What every piece is drawn with.
struct DarkPen {
  HDC dc;
  const ColorScheme& scheme;
  HFONT font;
  int dpi;
};

/// The face of a push button, or of the closed list of a combo box.
struct Push {
  bool usual = false;  // Enter presses it
  bool hot = false;
  bool pressed = false;
};
void draw_push(const DarkPen& pen, RECT area, const Push& push);

/// A button by its native style and state: push button, check box or option button.
void draw_button(const DarkPen& pen, HWND button);
/// A group box: a frame, broken by its caption.
void draw_group(const DarkPen& pen, HWND group);
/// A combo box that is closed, with the text of its choice.
void draw_combo(const DarkPen& pen, HWND combo);
/// One heading of a list; `sorted` is positive for an arrow down, negative for one up.
void draw_heading(const DarkPen& pen, const RECT& area, const std::wstring& text, int sorted);
/// A status bar with the texts of its panels.
void draw_status(const DarkPen& pen, HWND bar);
/// The border of a window over the one that the system has drawn, where it has one.
void draw_border(const ColorScheme& scheme, HWND window, Color inside);

}  // namespace quenda

#pragma once

#include <vector>

#include "platform/controls/control.h"
#include "platform/controls/splitter.h"

// Where controls lie on the screen and in which order the keyboard visits them; plain arithmetic.
namespace quenda {

struct Pixels {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const Pixels&, const Pixels&) = default;
};

/// By how many pixels a window or frame is larger than it was designed.
struct Growth {
  int across = 0;
  int down = 0;
};

/// Twips to pixels and back, rounded to the nearest.
int pixels_of(int twips, int dpi);
int twips_of(int pixels, int dpi);

/// Where a control lies in its parent. Edges, not sizes, are rounded, so that neighbours stay
/// neighbours at every DPI. `form` is the growth of the form.
Pixels laid_out(const Control& control, int dpi, Growth form);

/// Where a splitter may lie in its parent, in pixels from the top.
BorderRoom room_of(const Splitter& splitter, int dpi, Growth form);

/// The controls of one parent (null for the form) in the order in which the Tab key visits them. A
/// frame stands where the first of its controls does. Controls without a tab position keep their
/// place before the control that was made after them, so a label stays before its field.
std::vector<Control*> in_tab_order(const ControlHost& host, const Control* parent);

}  // namespace quenda

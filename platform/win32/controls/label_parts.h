#pragma once

#include <vector>

#include "platform/controls/parts_label.h"
#include "platform/win32/windows_headers.h"

namespace quenda {

/// Answers the painting of a label by its parts. A part that is marked gets the bold font and a
/// sign before it: neither colour nor weight alone tells everybody that something differs.
void draw_parts(HWND window, const std::vector<PartsLabel::Part>& parts, HFONT plain);

}  // namespace quenda

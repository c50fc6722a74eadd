#pragma once

#include <memory>

#include "platform/controls/splitter.h"
#include "platform/win32/controls/native_control.h"

namespace quenda {

/// A border that the mouse drags and, once it has the focus, the arrow keys move. A double click
/// leads back to where it usually lies.
std::unique_ptr<NativeControl> make_splitter(FormWindow& form, Splitter& splitter);

/// Takes an Escape that is pressed while a border is dragged, and has the border go back: it must
/// not reach the button that ends the program.
bool lets_go_of_border(const MSG& message);

}  // namespace quenda

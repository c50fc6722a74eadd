#pragma once

#include <memory>

#include "platform/controls/list_view.h"
#include "platform/win32/controls/native_control.h"

namespace quenda {

/// A list that holds no rows: it announces their number and asks the control for a cell when the
/// cell is about to be drawn, so a million rows cost as much as ten.
std::unique_ptr<NativeControl> make_list_view(FormWindow& form, ListView& list);

}  // namespace quenda

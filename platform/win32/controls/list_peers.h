#pragma once

#include <memory>

#include "platform/controls/lists.h"
#include "platform/win32/controls/native_control.h"

namespace quenda {

std::unique_ptr<NativeControl> make_list_box(FormWindow& form, ListBox& list);
std::unique_ptr<NativeControl> make_combo_list(FormWindow& form, ComboList& list);

}  // namespace quenda

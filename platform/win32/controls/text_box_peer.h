#pragma once

#include <memory>

#include "platform/controls/text_box.h"
#include "platform/win32/controls/native_control.h"

namespace quenda {

std::unique_ptr<NativeControl> make_text_box(FormWindow& form, TextBox& box);

}  // namespace quenda

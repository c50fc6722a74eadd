#pragma once

#include <memory>

#include "platform/text_box.h"
#include "platform/win32/native_control.h"

namespace quenda {

std::unique_ptr<NativeControl> make_text_box(FormWindow& form, TextBox& box);

}  // namespace quenda

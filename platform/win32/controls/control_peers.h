#pragma once

#include <memory>

#include "platform/win32/controls/native_control.h"

namespace quenda {

/// The native side of a control, by its kind.
std::unique_ptr<NativeControl> make_native_control(FormWindow& form, Control& control);

}  // namespace quenda

#pragma once

#include <memory>

#include "platform/controls/simple_controls.h"
#include "platform/win32/controls/native_control.h"

namespace quenda {

/// The progress picture: a bar in the user's highlight colour with the percentage written on it.
std::unique_ptr<NativeControl> make_progress(FormWindow& form, PictureBox& picture);

/// A timer has a window of its own, never shown, so that it is told apart by its handle alone.
std::unique_ptr<NativeControl> make_timer(FormWindow& form, Timer& timer);

}  // namespace quenda

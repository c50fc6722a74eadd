#pragma once

#include <string>
#include <string_view>

#include "tools/driver/driver_window.h"

namespace quenda {

/// The dialog or message box that lies over the main window, once it has come up and can be used;
/// fails the test when none comes. `main` itself stays locked meanwhile.
Window dialog_over(const Window& main);

/// What a message box says.
std::string message_of(const Window& box);

/// Presses Enter in a message box and waits until it is gone.
void confirm(const Window& box);

/// Types a path into the system's dialog for opening files, and waits until the dialog is gone.
void choose_file(const Window& dialog, std::string_view path);

}  // namespace quenda

#pragma once

#include "platform/controls/form.h"
#include "platform/win32/windows_headers.h"

namespace quenda {

/// Hands what the user has dropped onto a form's window to the form: the first of several files, or
/// that its name cannot be used. With `taken` false it is only put away.
void take_drop(const Form& form, WPARAM drop, bool taken);

}  // namespace quenda

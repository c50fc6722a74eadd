#pragma once

#include "platform/controls/form.h"
#include "platform/win32/handles.h"

namespace quenda {

/// Makes the window of a form, hidden, without controls and of no size yet: a dialog window of the
/// system, with an owner one over that. Null when there is none to be had.
WindowHandle make_form_window(const Form& form, HWND owner, DLGPROC procedure, LPARAM parameter);

/// Has the system ask anew which pointer is to be seen, where it stands over that window.
void show_pointer(HWND window);

}  // namespace quenda

#include "platform/win32/windows/form_frame.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/win32/controls/panel_window.h"

namespace quenda {
namespace {

/// A dialog without controls, as the system wants it described: the fixed part, then menu, class
/// and title as UTF-16 texts.
struct DialogTemplate {
  DLGTEMPLATE fixed{};
  std::array<wchar_t, 16> texts{};
};

DialogTemplate dialog_template(const Form& form, bool over_owner) {
  DialogTemplate made;
  made.fixed.style = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  made.fixed.style |= over_owner ? WS_POPUP | DS_MODALFRAME : WS_OVERLAPPED | WS_MINIMIZEBOX;
  if (form.resizable()) made.fixed.style |= WS_THICKFRAME | WS_MAXIMIZEBOX;
  made.fixed.dwExtendedStyle = WS_EX_CONTROLPARENT;
  if (form.on_drop_file) made.fixed.dwExtendedStyle |= WS_EX_ACCEPTFILES;
  const std::wstring_view name = kFormClass;
  std::copy(name.begin(), name.end(), made.texts.begin() + 1);
  return made;
}

}  // namespace

WindowHandle make_form_window(const Form& form, HWND owner, DLGPROC procedure, LPARAM parameter) {
  register_window_classes();
  const DialogTemplate made = dialog_template(form, owner != nullptr);
  return WindowHandle(CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &made.fixed, owner,
                                                 procedure, parameter));
}

void show_pointer(HWND window) {
  POINT at{};
  GetCursorPos(&at);
  const HWND under = WindowFromPoint(at);
  if (under != window && IsChild(window, under) == 0) return;
  SendMessageW(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

}  // namespace quenda

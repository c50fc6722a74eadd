#include "platform/win32/controls/panel_window.h"

namespace quenda {
namespace {

void register_class(const wchar_t* name, WNDPROC procedure, int extra, HCURSOR pointer,
                    UINT style = 0) {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof window_class;
  window_class.style = style;
  window_class.lpfnWndProc = procedure;
  window_class.cbWndExtra = extra;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.hCursor = pointer;
  window_class.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
  window_class.lpszClassName = name;
  RegisterClassExW(&window_class);
}

}  // namespace

void register_window_classes() {
  const INITCOMMONCONTROLSEX used{sizeof used, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
  InitCommonControlsEx(&used);
  const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
  register_class(kPanelClass, &DefWindowProcW, 0, arrow);
  register_class(kPictureClass, &DefWindowProcW, 0, arrow);
  register_class(kFormClass, &DefDlgProcW, DLGWINDOWEXTRA, arrow);
}

void register_splitter_class() {
  register_class(kSplitterClass, &DefWindowProcW, 0, LoadCursorW(nullptr, IDC_SIZENS), CS_DBLCLKS);
}

bool forward_to_parent(HWND area, UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) {
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
      result = SendMessageW(GetParent(area), message, wparam, lparam);
      return true;
    default:
      return false;
  }
}

}  // namespace quenda

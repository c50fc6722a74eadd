// The least that a program with a window can be: what the tool's start is measured against.
#include "platform/win32/windows_headers.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE /*previous*/, LPSTR /*command_line*/,
                   int /*show*/) {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof window_class;
  window_class.lpfnWndProc = [](HWND window, UINT message, WPARAM wparam,
                                LPARAM lparam) -> LRESULT {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wparam, lparam);
  };
  window_class.hInstance = instance;
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
  window_class.lpszClassName = L"EmptyWindow";
  RegisterClassExW(&window_class);
  const HWND window = CreateWindowExW(0, L"EmptyWindow", L"Empty window", WS_OVERLAPPEDWINDOW, 100,
                                      100, 728, 500, nullptr, nullptr, instance, nullptr);
  ShowWindow(window, SW_SHOWNORMAL);
  UpdateWindow(window);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}

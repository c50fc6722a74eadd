#pragma once

#include <memory>
#include <type_traits>
#include <utility>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// A handle of the system that is closed with its owner; `Nothing` is the value that means none.
template <class T, auto Close, auto Nothing = nullptr>
class Handle {
 public:
  Handle() = default;
  explicit Handle(T handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  Handle(Handle&& other) noexcept : handle_(other.release()) {}
  Handle& operator=(Handle&& other) noexcept {
    reset(other.release());
    return *this;
  }
  ~Handle() { reset(); }

  [[nodiscard]] T get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr && handle_ != nothing(); }
  [[nodiscard]] T release() { return std::exchange(handle_, nothing()); }
  void reset(T handle = nothing()) {
    if (*this) static_cast<void>(Close(handle_));
    handle_ = handle;
  }

 private:
  static T nothing() {
    if constexpr (std::is_same_v<decltype(Nothing), std::nullptr_t>) {
      return nullptr;
    } else {
      return Nothing();
    }
  }

  T handle_ = nothing();
};

inline HANDLE no_file() { return INVALID_HANDLE_VALUE; }

using KernelHandle = Handle<HANDLE, &CloseHandle>;
using FileHandle = Handle<HANDLE, &CloseHandle, &no_file>;
using WindowHandle = Handle<HWND, &DestroyWindow>;
using Font = Handle<HFONT, &DeleteObject>;
using Brush = Handle<HBRUSH, &DeleteObject>;
using Bitmap = Handle<HBITMAP, &DeleteObject>;
using MemoryDc = Handle<HDC, &DeleteDC>;
using Icon = Handle<HICON, &DestroyIcon>;

/// The drawing surface of a window, given back at the end.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() { ReleaseDC(window_, dc_); }
  [[nodiscard]] HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

/// Puts a font, brush or bitmap into a drawing surface for as long as it lives.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(dc_, before_); }

 private:
  HDC dc_;
  HGDIOBJ before_;
};

/// An address as a message parameter.
inline LPARAM as_lparam(const void* address) { return reinterpret_cast<LPARAM>(address); }

/// The address that a message parameter carries.
template <class T>
T* from_lparam(LPARAM value) {
  return reinterpret_cast<T*>(value);
}

}  // namespace quenda

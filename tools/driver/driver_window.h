#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// Looks again and again until the condition holds; false when it still does not after the time.
bool becomes(const std::function<bool()>& condition, int seconds = 30);

/// A window or control of the tool, seen from outside. Texts are Windows-1252.
class Window {
 public:
  Window() = default;
  explicit Window(HWND handle) : handle_(handle) {}

  [[nodiscard]] HWND handle() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  friend bool operator==(const Window&, const Window&) = default;

  [[nodiscard]] bool exists() const { return IsWindow(handle_) != 0; }
  /// To be seen, with all that it lies on.
  [[nodiscard]] bool visible() const { return IsWindowVisible(handle_) != 0; }
  /// Takes input, with all that it lies on.
  [[nodiscard]] bool enabled() const;
  [[nodiscard]] bool focused() const;
  [[nodiscard]] bool is(std::wstring_view window_class) const;
  /// Ticked or chosen.
  [[nodiscard]] bool checked() const;
  [[nodiscard]] RECT place() const;
  /// As it stands in the window, the mark of the Alt letter included.
  [[nodiscard]] std::string raw_text() const;
  /// As users read it.
  [[nodiscard]] std::string text() const;
  /// The letter that leads here with the Alt key, in upper case; 0 for none.
  [[nodiscard]] char alt_letter() const;

  /// The visible controls inside, in the order of the Tab key.
  [[nodiscard]] std::vector<Window> controls() const;
  /// The visible control with this text that is no label; nothing when there is none.
  [[nodiscard]] Window find(std::string_view text) const;
  /// The field, list or box that follows the label with this text; further ones by `next`.
  [[nodiscard]] Window after(std::string_view label, int next = 0) const;
  /// Whether a visible label or box says this.
  [[nodiscard]] bool shows(std::string_view text) const;
  /// The first visible control of the window class.
  [[nodiscard]] Window first(std::wstring_view window_class) const;

 private:
  HWND handle_ = nullptr;
};

/// The visible windows of a process that lie on the desktop, the uppermost first.
std::vector<Window> windows_of(DWORD process);

/// The visible window of any process with this title.
Window window_titled(std::string_view title);

/// The control that has the focus in the thread of a window.
Window focus_of(const Window& window);

}  // namespace quenda

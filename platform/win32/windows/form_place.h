#pragma once

#include <optional>

#include "platform/controls/form.h"
#include "platform/win32/windows/layout.h"
#include "platform/win32/windows/look.h"

namespace quenda {

/// How large a form's window is and where it lies, at the DPI of the screen that it is on, and by
/// how much the user has made it larger than designed. Whoever changes the scale through it has the
/// controls follow.
class FormPlace {
 public:
  FormPlace(Form& form, HWND owner) : form_(form), owner_(owner) {}

  /// At which everything in the window is laid out: that of the screen, and more where the user
  /// wants larger text, so that boxes grow with what stands in them.
  [[nodiscard]] int dpi() const { return dpi_; }
  [[nodiscard]] int screen_dpi() const { return screen_dpi_; }
  [[nodiscard]] Growth growth() const { return growth_; }
  /// There from the first `place` on.
  [[nodiscard]] const Fonts& fonts() const { return *fonts_; }

  /// Puts the window where the form wants to be, as large as designed. A dialog that wants nothing
  /// lies over the middle of its owner.
  void place(HWND window);
  /// From now on a movement is the user's doing.
  void shown() { shown_ = true; }
  // What the window is told by the system.
  void on_dpi(HWND window, int dpi, const RECT& place);
  void on_settings(HWND window);
  void on_size(HWND window);
  void on_move(HWND window) const;
  void limit_size(HWND window, MINMAXINFO& limits) const;

 private:
  /// The fonts anew, for a screen's DPI.
  void scale(HWND window, int dpi);
  /// The largest scale, in percent, at which the window fits onto its screen.
  [[nodiscard]] int fitting_scale(HWND window, int dpi) const;
  void resize(HWND window, const RECT& place, int dpi_before);
  [[nodiscard]] SIZE border(HWND window) const;
  /// As designed, without what the user has added.
  [[nodiscard]] SIZE outer_size(HWND window) const;

  Form& form_;
  HWND owner_;
  int screen_dpi_ = 96;
  int dpi_ = 96;
  Growth growth_;
  std::optional<Fonts> fonts_;
  bool shown_ = false;
};

/// The icons of a window's title bar and of its button in the task bar.
class WindowIcons {
 public:
  /// Loads and shows them. They come after the window: to load them before would keep the user
  /// waiting for it.
  void show(HWND window, int dpi);

 private:
  Icon big_;
  Icon small_;
};

}  // namespace quenda

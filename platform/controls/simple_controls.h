#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/controls/control.h"

namespace quenda {

/// A text that the user cannot change.
class Label : public Control {
 public:
  Label(ControlHost& host, std::string_view name, int index = -1)
      : Control(host, ControlKind::kLabel, name, index) {}

  /// Whether the caption is the user's data, in which "&" is a character like any other. In the
  /// name of a field it marks the letter that leads there. Part of the design, not changed later.
  [[nodiscard]] bool shows_data() const { return shows_data_; }
  void set_shows_data(bool shows_data) { shows_data_ = shows_data; }
  /// Whether the caption ends where the label does. Part of the design, too.
  [[nodiscard]] bool at_end() const { return at_end_; }
  void set_at_end(bool at_end) { at_end_ = at_end; }
  /// Whether a caption that is too long ends in "..." instead of going on in a second line. Part of
  /// the design.
  [[nodiscard]] bool one_line() const { return one_line_; }
  void set_one_line() { one_line_ = true; }
  /// Whether a screen reader says by itself what the label says, as soon as that is seen or
  /// changes. Part of the design.
  [[nodiscard]] bool announced() const { return announced_; }
  void set_announced() { announced_ = true; }

 private:
  bool shows_data_ = false;
  bool at_end_ = false;
  bool one_line_ = false;
  bool announced_ = false;
};

/// A group of controls that move, show and take input together.
class Frame : public Control {
 public:
  Frame(ControlHost& host, std::string_view name, int index = -1)
      : Control(host, ControlKind::kFrame, name, index) {}
};

/// A command button. Clicks reach a disabled button neither from the user nor from code.
class Button : public Control {
 public:
  Button(ControlHost& host, std::string_view name, int index = -1)
      : Control(host, ControlKind::kButton, name, index) {}

  std::function<void()> on_click;
  void take_user_click() {
    if (reachable() && on_click) on_click();
  }
};

/// A box with a tick.
class CheckBox : public Control {
 public:
  CheckBox(ControlHost& host, std::string_view name, int index = -1)
      : Control(host, ControlKind::kCheckBox, name, index) {}

  [[nodiscard]] bool ticked() const { return ticked_; }
  /// Raises Click when the tick changes, and only then.
  void set_ticked(bool ticked);
  /// The tick as a number, as settings store it; fault 380 for anything but 0 and 1.
  void set_value(int value);
  [[nodiscard]] int value() const { return ticked_ ? 1 : 0; }

  std::function<void()> on_click;
  void take_user_click();

 private:
  bool ticked_ = false;
};

/// One of several choices; the options of one control array exclude each other.
class OptionButton : public Control {
 public:
  OptionButton(ControlHost& host, std::string_view name, int index = -1)
      : Control(host, ControlKind::kOptionButton, name, index) {}

  [[nodiscard]] bool chosen() const { return chosen_; }
  /// Chooses this option, takes the choice from the others of its array, and raises Click, unless
  /// it was chosen already.
  void choose();

  std::function<void()> on_click;
  void take_user_click();

 private:
  bool chosen_ = false;
};

/// Runs its handler over and over while it is enabled.
class Timer : public Control {
 public:
  Timer(ControlHost& host, std::string_view name) : Control(host, ControlKind::kTimer, name) {
    set_enabled(false);
  }
  [[nodiscard]] int interval() const { return interval_; }
  /// Milliseconds from one run to the next.
  void set_interval(int milliseconds) { interval_ = milliseconds; }

  std::function<void()> on_timer;
  void take_tick() {
    if (enabled() && on_timer) on_timer();
  }

 private:
  int interval_ = 100;
};

/// The picture that long work draws its progress on.
class PictureBox : public Control {
 public:
  PictureBox(ControlHost& host, std::string_view name)
      : Control(host, ControlKind::kPicture, name) {}
  /// Whole percents, 0 to 100.
  [[nodiscard]] int percent() const { return percent_; }
  /// Shown anew only when the percentage changes.
  void set_percent(int percent) {
    if (percent_ == percent) return;
    percent_ = percent;
    refresh(Aspect::kValue);
  }

 private:
  int percent_ = 0;
};

/// The line at the foot of the window with its three panels.
class StatusBar : public Control {
 public:
  StatusBar(ControlHost& host, std::string_view name)
      : Control(host, ControlKind::kStatusBar, name) {}
  /// Text of panel 1, 2 or 3.
  [[nodiscard]] const std::string& panel(int number) const {
    return panels_.at(static_cast<std::size_t>(number - 1));
  }
  void set_panel(int number, std::string_view text);

 private:
  std::array<std::string, 3> panels_;
};

}  // namespace quenda

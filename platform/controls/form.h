#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/controls/control.h"

namespace quenda {

class Button;

/// What asks a form to close.
enum class CloseReason { kCode, kCloseBox };

/// The mouse pointer over a form.
enum class Pointer { kDefault, kHourglass };

/// A window: a set of controls with a title. It exists before it is shown and can live without ever
/// being shown.
class Form : public ControlHost {
 public:
  explicit Form(std::string_view name) : name_(name) {}
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const std::string& caption() const { return caption_; }
  void set_caption(std::string_view caption);

  /// Outer position and inner size in twips. A dialog at 0, 0 opens over the middle of its owner.
  [[nodiscard]] const Place& place() const { return place_; }
  void set_place(const Place& place);
  /// Width of the window with its frame; 0 for a form that only tells its inner width.
  [[nodiscard]] int outer_width() const { return outer_width_; }
  void set_outer_width(int twips) { outer_width_ = twips; }
  /// The window's new position after the user moved it.
  void take_user_position(int left, int top);

  /// Whether the user may make the window larger than designed; controls follow by their anchors.
  [[nodiscard]] bool resizable() const { return resizable_; }
  void set_resizable(bool resizable) { resizable_ = resizable; }

  /// How a screen reader says where in a list the user is: "Zeile %1 von %2".
  [[nodiscard]] const std::string& row_pattern() const { return row_pattern_; }
  void set_row_pattern(std::string_view pattern) { row_pattern_ = pattern; }

  [[nodiscard]] Pointer pointer() const { return pointer_; }
  void set_pointer(Pointer pointer);
  /// While redrawing is off, changes are only noted; they are shown with the next ones after it is
  /// on again.
  [[nodiscard]] bool redraw() const { return redraw_; }
  void set_redraw(bool redraw) { redraw_ = redraw; }

  /// True from construction until the form has been unloaded.
  [[nodiscard]] bool loaded() const { return loaded_; }
  /// Closes the form. A close by the user may be refused by `on_query_unload`; the result tells
  /// whether the form is closed. Runs `on_unload` once.
  bool unload(CloseReason reason = CloseReason::kCode);

  std::function<void(bool& cancel, CloseReason reason)> on_query_unload;
  std::function<void()> on_unload;
  /// The window is the active one, and none of its controls has the keyboard focus.
  std::function<void()> on_got_focus;
  /// A file was dropped onto the window.
  std::function<void(std::string_view path)> on_drop_file;
  /// The user dropped a file whose name has characters outside Windows-1252, so that the
  /// tool cannot name it; `nearest` is the path with those characters replaced.
  std::function<void(std::string_view nearest)> on_unusable_path;
  /// F1 was pressed.
  std::function<void()> on_help;

  /// The buttons that Enter and Escape press; null for none.
  Button* default_button = nullptr;
  Button* cancel_button = nullptr;

  /// The control of that name and index; null when the form has none.
  [[nodiscard]] Control* find(std::string_view name, int index = -1) const;

  void attach(ControlPeer* peer) { peer_ = peer; }
  [[nodiscard]] ControlPeer* peer() const { return peer_; }

 private:
  void refresh(Aspect aspect) {
    if (peer_ != nullptr) peer_->refresh(aspect);
  }

  std::string name_;
  std::string caption_;
  Place place_;
  int outer_width_ = 0;
  std::string row_pattern_;
  Pointer pointer_ = Pointer::kDefault;
  bool redraw_ = true;
  bool resizable_ = false;
  bool loaded_ = true;
  ControlPeer* peer_ = nullptr;
};

/// Keeps a form from redrawing while lists are filled: stands for the system's lock of a window's
/// updates. It matters where events are handled while a list is half full.
class UpdateLock {
 public:
  explicit UpdateLock(Form& form) : form_(form) { form_.set_redraw(false); }
  ~UpdateLock() { form_.set_redraw(true); }
  UpdateLock(const UpdateLock&) = delete;
  UpdateLock& operator=(const UpdateLock&) = delete;

 private:
  Form& form_;
};

}  // namespace quenda

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/controls/form.h"
#include "platform/win32/controls/native_control.h"
#include "platform/win32/handles.h"
#include "platform/win32/windows/focus_keeper.h"
#include "platform/win32/windows/form_colors.h"
#include "platform/win32/windows/form_place.h"
#include "platform/win32/windows/keyed_captions.h"
#include "platform/win32/windows/message_loop.h"
#include "platform/win32/windows/reader_names.h"
#include "platform/win32/windows/task_bar.h"

namespace quenda {

/// The native window of one form, with the windows of its controls. It is a dialog window of the
/// system, so moving by Tab, arrow keys and Alt letters, Enter and Escape work as users know them.
class FormWindow : public ControlPeer, public LoopClient {
 public:
  /// Makes the window, hidden. With an owner it is a dialog over it.
  FormWindow(MessageLoop& loop, Form& form, HWND owner);
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  ~FormWindow() override;

  void show();
  [[nodiscard]] HWND window() const { return window_.get(); }
  [[nodiscard]] Form& form() const { return form_; }
  [[nodiscard]] MessageLoop& loop() const { return loop_; }
  /// The native control of a control that has its window.
  [[nodiscard]] static NativeControl* peer_of(const Control& control);
  // What the window has owners for.
  [[nodiscard]] FocusKeeper& focus() { return focus_; }
  [[nodiscard]] KeyedCaptions& captions() { return captions_; }
  [[nodiscard]] ReaderNames& names() { return names_; }
  [[nodiscard]] const FormPlace& place() const { return place_; }
  [[nodiscard]] const ColorScheme& colors() const { return colors_.scheme(); }
  [[nodiscard]] bool dark() const { return colors_.dark(); }

  /// Whether the window is to be seen.
  [[nodiscard]] bool is_up() const { return up_; }
  /// A frame has come into view: its controls get their windows, if they have none yet, and the
  /// focus when the work at hand is done.
  void page_shown(NativeControl& frame);
  /// How far long work has come, in percent; none when it is over.
  void show_progress(std::optional<int> percent);
  /// Has every control take the place that is its own now.
  void lay_out();
  /// What is to be seen means something else now: a press that belongs to what was there before
  /// must not reach it.
  void content_changed();
  /// Makes the window of a control that was hidden so far, at its place in the tab order.
  void create_late(NativeControl& native);

  void refresh(Aspect aspect) override;
  bool translate(MSG& message) override;
  void show_changes() override;
  void settle(bool idle) override;

 private:
  static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wparam,
                                    LPARAM lparam) noexcept;
  /// Native controls for the controls in a frame, null for the form. Hidden ones get their windows
  /// when they are shown, and so does all that lies in a hidden frame: making all of them at once
  /// would double the time until the form's window is there. Those that are slow to make, or are
  /// not to be seen, follow between the window's showing and its first picture.
  void create_controls(HWND parent, const Control* frame);
  [[nodiscard]] int id_of(const Control& control) const;
  [[nodiscard]] NativeControl* peer_of(int id) const;
  /// That of a window; null for a window that is no control of this form.
  [[nodiscard]] NativeControl* peer_of(HWND window) const;
  [[nodiscard]] const Control* control_at(HWND window) const;

  INT_PTR on_message(UINT message, WPARAM wparam, LPARAM lparam);
  INT_PTR answer(LRESULT result) const;
  void on_command(UINT code, int id, HWND control);
  /// The colours that the user wants now, in the frame and in every control.
  void follow_colors();
  /// The form's caption. While the window is minimised the progress stands before it, since there
  /// is no other place to see it.
  void show_title() const;
  void close();
  [[nodiscard]] bool takes_input() const;
  /// Has the controls follow another DPI or other settings of the system.
  void follow_scale();

  MessageLoop& loop_;
  Form& form_;
  HWND owner_;
  FormPlace place_;
  FormColors colors_;
  WindowIcons icons_;
  KeyedCaptions captions_;
  ReaderNames names_;
  FocusKeeper focus_{*this};
  TaskBarProgress task_bar_;
  std::optional<int> progress_;
  std::vector<std::unique_ptr<NativeControl>> controls_;
  bool up_ = false;     // the window is to be seen
  bool ready_ = false;  // and what lies in it, too
  bool showing_ = false;
  WindowHandle window_;
};

}  // namespace quenda

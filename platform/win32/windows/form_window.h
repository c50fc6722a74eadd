#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls/form.h"
#include "platform/win32/controls/native_control.h"
#include "platform/win32/controls/spoken_name.h"
#include "platform/win32/handles.h"
#include "platform/win32/windows/focus_keeper.h"
#include "platform/win32/windows/layout.h"
#include "platform/win32/windows/look.h"
#include "platform/win32/windows/message_loop.h"

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
  [[nodiscard]] int dpi() const { return dpi_; }
  [[nodiscard]] Growth growth() const { return growth_; }
  [[nodiscard]] const Fonts& fonts() const { return *fonts_; }
  [[nodiscard]] FocusKeeper& focus() { return focus_; }
  /// The native control of a control that has its window.
  [[nodiscard]] static NativeControl* peer_of(const Control& control);
  /// A control's caption with the letter by which Alt leads to it.
  [[nodiscard]] std::string keyed_caption(const Control& control) const;
  /// A caption is another or a control has come into view, so letters can have to change.
  void captions_changed() { captions_changed_ = true; }
  /// The name that a control has to answer a screen reader with itself; empty where the system
  /// knows it. The service of the system that keeps names is loaded when a reader first asks: most
  /// users have none, and need not wait for it.
  [[nodiscard]] std::string name_to_answer(const NativeControl& native);
  /// Has a reader that listens told of other names.
  void names_changed() { names_changed_ = true; }
  /// A frame has come into view: its controls get their windows, if they have none yet, and the
  /// focus when the work at hand is done.
  void page_shown(NativeControl& frame);
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
  /// would double the time until the form's window is there.
  void create_controls(HWND parent, const Control* frame);
  [[nodiscard]] int id_of(const Control& control) const;
  [[nodiscard]] NativeControl* peer_of(int id) const;
  /// That of a window; null for a window that is no control of this form.
  [[nodiscard]] NativeControl* peer_of(HWND window) const;

  INT_PTR on_message(UINT message, WPARAM wparam, LPARAM lparam);
  INT_PTR answer(LRESULT result) const;
  void on_command(UINT code, int id, HWND control);
  [[nodiscard]] INT_PTR color(WPARAM dc, HWND control) const;
  void on_dpi(int dpi, const RECT& place);
  void on_size();
  void on_move();
  void on_drop(WPARAM drop);
  void limit_size(MINMAXINFO& limits) const;
  void close();
  [[nodiscard]] bool takes_input() const;

  void use_dpi(int dpi);
  /// The icons of the title bar and the task bar, which come after the window: to load them before
  /// would keep the user waiting for it.
  void show_icons();
  void place_window();
  [[nodiscard]] SIZE border() const;
  /// As designed, without what the user has added.
  [[nodiscard]] SIZE outer_size() const;
  void show_pointer() const;
  void tell_names();
  void give_access_keys();

  MessageLoop& loop_;
  Form& form_;
  HWND owner_;
  int dpi_ = 96;
  Growth growth_;
  std::optional<Fonts> fonts_;
  Icon big_icon_;
  Icon small_icon_;
  std::vector<std::unique_ptr<NativeControl>> controls_;
  std::map<const Control*, std::string> keyed_;
  FocusKeeper focus_{*this};
  bool captions_changed_ = true;
  bool names_changed_ = false;
  std::unique_ptr<SpokenNames> names_;
  bool ready_ = false;
  bool showing_ = false;
  WindowHandle window_;
};

}  // namespace quenda

#pragma once

#include <string>
#include <string_view>

#include "platform/controls/control.h"
#include "platform/win32/controls/dark_paint.h"
#include "platform/win32/controls/named_object.h"
#include "platform/win32/handles.h"
#include "platform/win32/windows/layout.h"

namespace quenda {

class FormWindow;

/// The native window of one control, made when the control is first visible. What changes in the
/// control is only noted; the form window has it shown, all at once, before the next input is
/// handled or when long work yields, so that filling a list row by row costs one update. What it
/// does to its own window is muted: the notices that follow from it are not the user's doing.
class NativeControl : public ControlPeer {
 public:
  NativeControl(FormWindow& form, Control& control) : form_(form), control_(control) {}
  NativeControl(const NativeControl&) = delete;
  NativeControl& operator=(const NativeControl&) = delete;
  ~NativeControl() override;

  /// Keeps notices from being taken for the user's doing for as long as it lives.
  class Mute {
   public:
    explicit Mute(NativeControl& control) : control_(control), before_(control.muted_) {
      control_.muted_ = true;
    }
    Mute(const Mute&) = delete;
    Mute& operator=(const Mute&) = delete;
    ~Mute() { control_.muted_ = before_; }

   private:
    NativeControl& control_;
    bool before_;
  };

  void refresh(Aspect aspect) override;
  /// Shows everything that has been noted.
  void show_changes();
  /// Notes everything that a window which has just been made does not show by itself.
  void note_all();

  [[nodiscard]] Control& control() const { return control_; }
  /// Null until the control has been visible for the first time.
  [[nodiscard]] HWND window() const { return window_; }
  /// Whether the control was brought to the front while it had no window.
  [[nodiscard]] bool in_front() const { return in_front_; }
  /// Whether the control is to have its native window by now.
  [[nodiscard]] bool wants_window() const;
  /// Makes the native window inside its parent. Arrow keys go round within a group.
  void create(HWND parent, int id, bool begins_group);
  /// Moves the window to where the control lies at the form's DPI and size.
  virtual void place();
  /// The font, after the DPI or the user's settings changed.
  virtual void apply_font();
  /// The colours, after the user's wish for dark windows changed.
  virtual void apply_colors();

  /// A notice of the window to its parent: the code of WM_COMMAND.
  virtual void on_command(UINT /*code*/) {}
  virtual LRESULT on_notify(NMHDR& /*notice*/) { return 0; }
  /// What a screen reader is told of a control that the system does not know; none with a role for
  /// the others.
  [[nodiscard]] virtual Spoken spoken() const { return {}; }

 protected:
  struct WindowSpec {
    const wchar_t* window_class;
    bool takes_input;
    DWORD style;
    DWORD extended = 0;
    std::string text = {};
  };

  [[nodiscard]] virtual WindowSpec spec() const = 0;
  /// Whether the form's window is rather shown first, because this one takes long to make or is not
  /// to be seen. It is there by the first picture all the same.
  [[nodiscard]] virtual bool can_wait() const { return false; }
  /// Runs once after the window has been made.
  virtual void prepare() {}
  /// Shows one changed aspect that the kind of control has beyond the common ones.
  virtual void show(Aspect /*aspect*/) {}
  /// Sees every message of the window; true when it has been dealt with.
  virtual bool on_message(UINT /*message*/, WPARAM& /*wparam*/, LPARAM /*lparam*/,
                          LRESULT& /*result*/) {
    return false;
  }

  [[nodiscard]] FormWindow& form() const { return form_; }
  [[nodiscard]] bool muted() const { return muted_; }
  LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const {
    return SendMessageW(window_, message, wparam, lparam);
  }
  void set_window_text(std::string_view text) const;
  /// What pieces in the form's dark colours are drawn with.
  [[nodiscard]] DarkPen pen(HDC dc) const;
  /// Draws the whole window by a function of those.
  void paint_by(void (*draw)(const DarkPen& pen, HWND window)) const;

 private:
  void show_common(Aspect aspect);
  /// Whether the window is to be an enabled one. What only shows something stays as it is while the
  /// form is locked for work; greying it would make the whole window flicker.
  [[nodiscard]] bool is_live() const;
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam,
                                    LPARAM lparam) noexcept;
  /// The accessible object that a screen reader asks for, where the control has to give it; else 0.
  LRESULT object_named(WPARAM wparam, LPARAM lparam);
  LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) noexcept;

  FormWindow& form_;
  Control& control_;
  HWND window_ = nullptr;
  WNDPROC system_procedure_ = nullptr;
  Pixels placed_;
  unsigned noted_ = 0;
  bool muted_ = false;
  bool in_front_ = false;
};

/// The control of a peer, as its own kind.
template <class T>
class PeerOf : public NativeControl {
 public:
  PeerOf(FormWindow& form, T& control) : NativeControl(form, control), typed_(control) {}

 protected:
  [[nodiscard]] T& typed() const { return typed_; }

 private:
  T& typed_;
};

}  // namespace quenda

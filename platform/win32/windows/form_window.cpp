#include "platform/win32/windows/form_window.h"

#include <dde.h>

#include <algorithm>
#include <utility>

#include "platform/controls/simple_controls.h"
#include "platform/win32/controls/control_peers.h"
#include "platform/win32/controls/splitter_peer.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/dropped_file.h"
#include "platform/win32/windows/form_frame.h"
#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr int kFirstId = 100;

/// Arrow keys go round among the options of one array.
bool begins_group(const Control* before, const Control& control) {
  return before == nullptr || control.kind() != ControlKind::kOptionButton ||
         before->kind() != control.kind() || before->name() != control.name();
}

}  // namespace

FormWindow::FormWindow(MessageLoop& loop, Form& form, HWND owner)
    : loop_(loop), form_(form), owner_(owner), place_(form, owner), captions_(form), names_(form) {
  window_ = make_form_window(form, owner, &FormWindow::procedure, as_lparam(this));
  if (!window_) raise_fault(kFaultOutOfMemory);
  colors_.follow(window());
  place_.place(window());
  captions_.renew();
  // Before the controls are there, or the system would look through all of them.
  if (form_.default_button != nullptr) {
    SendMessageW(window(), DM_SETDEFID, static_cast<WPARAM>(id_of(*form_.default_button)), 0);
  }
  create_controls(window(), nullptr);
  show_title();
  form_.attach(this);
  loop_.add(*this);
  show_changes();
}

FormWindow::~FormWindow() {
  ready_ = false;
  SetWindowLongPtrW(window(), DWLP_USER, 0);
  loop_.remove(*this);
  form_.attach(nullptr);
  for (const auto& control : controls_) control->control().attach(nullptr);
  controls_.clear();
}

void FormWindow::create_controls(HWND parent, const Control* frame) {
  const Control* before = nullptr;
  for (Control* control : in_tab_order(form_, frame)) {
    controls_.push_back(make_native_control(*this, *control));
    NativeControl& native = *controls_.back();
    control->attach(&native);
    native.note_all();
    if (native.wants_window()) {
      native.create(parent, id_of(*control), begins_group(before, *control));
      if (control->kind() == ControlKind::kFrame) create_controls(native.window(), control);
    }
    before = control;
  }
}

void FormWindow::create_late(NativeControl& native) {
  const Control& control = native.control();
  const Control* before = nullptr;
  HWND behind = HWND_TOP;
  for (const Control* sibling : in_tab_order(form_, control.parent())) {
    if (sibling == &control) break;
    before = sibling;
    const NativeControl* const peer = peer_of(*sibling);
    if (peer != nullptr && peer->window() != nullptr) behind = peer->window();
  }
  const HWND parent = control.parent() == nullptr ? window() : peer_of(*control.parent())->window();
  native.create(parent, id_of(control), begins_group(before, control));
  SetWindowPos(native.window(), native.in_front() ? HWND_TOP : behind, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

int FormWindow::id_of(const Control& control) const {
  const auto& all = form_.controls();
  return kFirstId + static_cast<int>(std::find(all.begin(), all.end(), &control) - all.begin());
}

void FormWindow::page_shown(NativeControl& frame) {
  const auto& all = form_.controls();
  const bool empty = std::none_of(all.begin(), all.end(), [&](const Control* control) {
    return control->parent() == &frame.control() && control->peer() != nullptr;
  });
  if (empty) create_controls(frame.window(), &frame.control());
  captions_.changed();
  if (!ready_) return;
  focus_.page_shown();
  content_changed();
}

/// The button that stops everything means the same on every page.
void FormWindow::content_changed() {
  const Button* const stop = form_.cancel_button;
  loop_.presses().content_changed(stop == nullptr ? nullptr : peer_of(*stop)->window());
}

NativeControl* FormWindow::peer_of(const Control& control) {
  return static_cast<NativeControl*>(control.peer());
}

NativeControl* FormWindow::peer_of(HWND window) const {
  NativeControl* const native = peer_of(GetDlgCtrlID(window));
  return native != nullptr && native->window() == window ? native : nullptr;
}

const Control* FormWindow::control_at(HWND window) const {
  const NativeControl* const peer = peer_of(window);
  return peer == nullptr ? nullptr : &peer->control();
}

NativeControl* FormWindow::peer_of(int id) const {
  const auto& all = form_.controls();
  const int position = id - kFirstId;
  if (position < 0 || position >= static_cast<int>(all.size())) return nullptr;
  return peer_of(*all[static_cast<std::size_t>(position)]);
}

void FormWindow::show() {
  ShowWindow(window(), SW_SHOWNORMAL);
  up_ = true;
  show_changes();
  SetForegroundWindow(window());
  UpdateWindow(window());
  ready_ = true;
  place_.shown();
  loop_.presses().window_came_up();
  icons_.show(window(), place_.screen_dpi());
  // The system has chosen the first field; where the work begins is for the form to say.
  focus_.page_shown();
  settle(true);
}

void FormWindow::refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::kCaption:
      show_title();
      break;
    case Aspect::kPlace:
      place_.place(window());
      follow_scale();
      break;
    case Aspect::kPointer:
      show_pointer(window());
      break;
    case Aspect::kVisible:
      // The form is unloaded; its window goes with this object. A dialog stays until its owner
      // takes input again, or the system would bring another program's window forward.
      if (owner_ == nullptr) ShowWindow(window(), SW_HIDE);
      MessageLoop::wake();
      break;
    default:
      break;
  }
}

void FormWindow::show_changes() {
  if (showing_ || !form_.redraw()) return;
  showing_ = true;
  captions_.renew();
  // A frame that comes into view adds controls: NOLINTNEXTLINE(modernize-loop-convert)
  for (std::size_t i = 0; i < controls_.size(); ++i) controls_[i]->show_changes();
  showing_ = false;
}

bool FormWindow::translate(MSG& message) {
  if (message.message == WM_KEYDOWN && message.wParam == VK_F1 &&
      GetAncestor(message.hwnd, GA_ROOT) == window()) {
    loop_.at_edge([&] {
      if (form_.on_help) form_.on_help();
    });
    return true;
  }
  if (focus_.drops(message) || lets_go_of_border(message)) return true;
  return IsDialogMessageW(window(), &message) != 0;
}

void FormWindow::settle(bool idle) {
  if (!ready_ || !form_.loaded()) return;
  // Work that locks nothing waits for another program; the user goes on meanwhile.
  idle = idle || !form_.input_locked();
  if (idle) names_.tell(controls_);
  focus_.settle(idle);
  show_changes();
}

void FormWindow::lay_out() {
  for (const auto& control : controls_) control->refresh(Aspect::kPlace);
}

void FormWindow::follow_scale() {
  for (const auto& control : controls_) {
    if (control->window() != nullptr) control->apply_font();
  }
  lay_out();
  if (ready_) icons_.show(window(), place_.screen_dpi());
  RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::show_progress(std::optional<int> percent) {
  progress_ = percent;
  task_bar_.show(window(), percent);
  if (IsIconic(window()) != 0) show_title();
}

void FormWindow::show_title() const {
  std::string title = form_.caption();
  if (progress_ && IsIconic(window()) != 0) {
    title = concat(std::to_string(*progress_), " % - ", title);
  }
  SetWindowTextW(window(), wide(title).c_str());
}

/// A window under a dialog can still be sent messages by other programs.
bool FormWindow::takes_input() const { return IsWindowEnabled(window()) != 0; }

void FormWindow::close() {
  if (takes_input()) form_.unload(CloseReason::kCloseBox);
}

void FormWindow::on_command(UINT code, int id, HWND control) {
  if (NativeControl* native = peer_of(control)) return native->on_command(code);
  if (id == IDCANCEL) {
    if (form_.cancel_button != nullptr) form_.cancel_button->take_user_click();
  } else if (id == IDOK) {
    if (form_.default_button != nullptr) form_.default_button->take_user_click();
  } else if (NativeControl* native = peer_of(id)) {
    native->on_command(code);
  }
}

void FormWindow::follow_colors() {
  colors_.follow(window());
  for (const auto& control : controls_) {
    if (control->window() != nullptr) control->apply_colors();
  }
}

INT_PTR FormWindow::answer(LRESULT result) const {
  SetWindowLongPtrW(window(), DWLP_MSGRESULT, result);
  return TRUE;
}

INT_PTR FormWindow::on_message(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_COMMAND:
      if (takes_input()) {
        on_command(HIWORD(wparam), LOWORD(wparam), from_lparam<HWND__>(lparam));
      }
      return TRUE;
    case WM_NOTIFY: {
      auto& notice = *from_lparam<NMHDR>(lparam);
      NativeControl* const native = peer_of(notice.hwndFrom);
      return native == nullptr ? FALSE : answer(native->on_notify(notice));
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORDLG:
      return colors_.answer(message, wparam, control_at(from_lparam<HWND__>(lparam)));
    case WM_SETCURSOR:
      if (form_.pointer() != Pointer::kHourglass || LOWORD(lparam) != HTCLIENT) return FALSE;
      SetCursor(LoadCursorW(nullptr, IDC_WAIT));
      return answer(TRUE);
    case WM_DDE_INITIATE:
      if (owner_ == nullptr && loop_.on_host_call) {
        loop_.on_host_call(reinterpret_cast<HWND>(wparam), lparam);
      }
      return TRUE;
    case WM_SETFOCUS:
      return focus_.rests() ? TRUE : FALSE;
    case WM_ACTIVATE:
      // The system would look for a button to give the focus to.
      if (!focus_.rests() || LOWORD(wparam) == WA_INACTIVE) return FALSE;
      SetFocus(window());
      return TRUE;
    case WM_CLOSE:
      close();
      return TRUE;
    case WM_QUERYENDSESSION:
      return answer(TRUE);
    case WM_ENDSESSION:
      // Dialogs go with the main window: the end of the session answers no question.
      if (wparam != 0 && owner_ == nullptr) form_.unload(CloseReason::kCode);
      return TRUE;
    case WM_SIZE:
      if (progress_) show_title();
      place_.on_size(window());
      lay_out();
      return TRUE;
    case WM_MOVE:
      place_.on_move(window());
      return TRUE;
    case WM_GETMINMAXINFO:
      place_.limit_size(window(), *from_lparam<MINMAXINFO>(lparam));
      return TRUE;
    case WM_DPICHANGED:
      place_.on_dpi(window(), LOWORD(wparam), *from_lparam<RECT>(lparam));
      follow_scale();
      return TRUE;
    case WM_SETTINGCHANGE:
    case WM_SYSCOLORCHANGE:
      place_.on_settings(window());
      follow_colors();
      follow_scale();
      return FALSE;
    case WM_DROPFILES:
      take_drop(form_, wparam, takes_input());
      return TRUE;
    case WM_HELP:
      return TRUE;  // F1 has been taken before
    default:
      return FALSE;
  }
}

INT_PTR CALLBACK FormWindow::procedure(HWND window, UINT message, WPARAM wparam,
                                       LPARAM lparam) noexcept {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lparam);
    return FALSE;
  }
  auto* const self = from_lparam<FormWindow>(GetWindowLongPtrW(window, DWLP_USER));
  if (self == nullptr || !self->window_) return FALSE;
  return self->loop_.at_edge([&] { return self->on_message(message, wparam, lparam); },
                             INT_PTR{FALSE});
}

}  // namespace quenda

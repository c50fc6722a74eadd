#include "platform/win32/form_window.h"

#include <shellapi.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/simple_controls.h"
#include "platform/text_box.h"
#include "platform/win32/control_peers.h"
#include "platform/win32/panel_window.h"
#include "platform/win32/text_win32.h"
#include "support/fault.h"

namespace quenda {
namespace {

constexpr int kFirstId = 100;
constexpr int kIconResource = 1;

/// A dialog without controls, as the system wants it described: the fixed part, then menu, class
/// and title as UTF-16 texts.
struct DialogTemplate {
  DLGTEMPLATE fixed{};
  std::array<wchar_t, 16> texts{};
};

DialogTemplate dialog_template(const Form& form, bool over_owner) {
  DialogTemplate made;
  made.fixed.style = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  made.fixed.style |= over_owner ? WS_POPUP | DS_MODALFRAME : WS_OVERLAPPED | WS_MINIMIZEBOX;
  if (form.resizable()) made.fixed.style |= WS_THICKFRAME | WS_MAXIMIZEBOX;
  made.fixed.dwExtendedStyle = WS_EX_CONTROLPARENT;
  const std::wstring_view name = kFormClass;
  std::copy(name.begin(), name.end(), made.texts.begin() + 1);
  return made;
}

/// Moves a window's place into the working area of the nearest screen: a place remembered from a
/// screen that is gone must not hide the window.
RECT on_screen(RECT place) {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  if (GetMonitorInfoW(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &screen) == 0) {
    return place;
  }
  const RECT& area = screen.rcWork;
  OffsetRect(&place, std::min(area.right - place.right, 0L),
             std::min(area.bottom - place.bottom, 0L));
  OffsetRect(&place, std::max(area.left - place.left, 0L), std::max(area.top - place.top, 0L));
  return place;
}

Icon load_icon(int width_metric, int height_metric, int dpi) {
  const auto size = static_cast<UINT>(dpi);
  return Icon(
      static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kIconResource),
                                    IMAGE_ICON, GetSystemMetricsForDpi(width_metric, size),
                                    GetSystemMetricsForDpi(height_metric, size), LR_DEFAULTCOLOR)));
}

bool takes_input(HWND window, HWND form) {
  for (HWND at = window; at != nullptr && at != form; at = GetParent(at)) {
    const LONG_PTR style = GetWindowLongPtrW(at, GWL_STYLE);
    if ((style & WS_DISABLED) != 0 || (style & WS_VISIBLE) == 0) return false;
  }
  return true;
}

}  // namespace

FormWindow::FormWindow(MessageLoop& loop, Form& form, HWND owner)
    : loop_(loop), form_(form), owner_(owner) {
  register_window_classes();
  const DialogTemplate made = dialog_template(form, owner != nullptr);
  window_.reset(CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &made.fixed, owner,
                                           &FormWindow::procedure, as_lparam(this)));
  if (!window_) raise_fault(kFaultOutOfMemory);
  place_window();
  create_controls(window(), nullptr);
  if (form_.default_button != nullptr) {
    if (const NativeControl* usual = peer_of(form_.default_button)) {
      SendMessageW(window(), DM_SETDEFID, static_cast<WPARAM>(GetDlgCtrlID(usual->window())), 0);
    }
  }
  SetWindowTextW(window(), wide(form_.caption()).c_str());
  DragAcceptFiles(window(), form_.on_drop_file ? TRUE : FALSE);
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
  const auto& all = form_.controls();
  bool in_group = false;
  const Control* before = nullptr;
  for (Control* control : in_tab_order(form_, frame)) {
    auto native = make_native_control(*this, *control);
    const auto position = std::find(all.begin(), all.end(), control) - all.begin();
    native->create(parent, kFirstId + static_cast<int>(position));
    // Arrow keys go round among the options of one array.
    in_group = before != nullptr && control->kind() == ControlKind::kOptionButton &&
               before->kind() == control->kind() && before->name() == control->name();
    if (!in_group) {
      const LONG_PTR style = GetWindowLongPtrW(native->window(), GWL_STYLE);
      SetWindowLongPtrW(native->window(), GWL_STYLE, style | WS_GROUP);
    }
    before = control;
    control->attach(native.get());
    native->note_all();
    controls_.push_back(std::move(native));
    if (control->kind() == ControlKind::kFrame && control->visible()) {
      create_controls(controls_.back()->window(), control);
    }
  }
}

void FormWindow::page_shown(NativeControl& frame) {
  const auto& all = form_.controls();
  const bool empty = std::none_of(all.begin(), all.end(), [&](const Control* control) {
    return control->parent() == &frame.control() && control->peer() != nullptr;
  });
  if (empty) create_controls(frame.window(), &frame.control());
  page_is_new_ = ready_;
}

NativeControl* FormWindow::peer_of(const Control* control) const {
  return static_cast<NativeControl*>(control->peer());
}

NativeControl* FormWindow::peer_of(int id) const {
  const auto& all = form_.controls();
  const int position = id - kFirstId;
  if (position < 0 || position >= static_cast<int>(all.size())) return nullptr;
  return peer_of(all[static_cast<std::size_t>(position)]);
}

void FormWindow::show() {
  ShowWindow(window(), SW_SHOWNORMAL);
  SetForegroundWindow(window());
  UpdateWindow(window());
  ready_ = true;
  settle(true);
}

void FormWindow::refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::kCaption:
      SetWindowTextW(window(), wide(form_.caption()).c_str());
      break;
    case Aspect::kPlace:
      place_window();
      break;
    case Aspect::kPointer:
      show_pointer();
      break;
    default:
      break;  // a closed window goes with this object; redrawing is looked up when it matters
  }
}

void FormWindow::show_changes() {
  if (showing_ || !form_.redraw()) return;
  showing_ = true;
  // A frame that comes into view adds controls.
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
  return IsDialogMessageW(window(), &message) != 0;
}

bool FormWindow::focus_is_lost() const {
  const HWND focus = GetFocus();
  return focus == nullptr || focus == window() || !takes_input(focus, window());
}

void FormWindow::give_focus(NativeControl& control) {
  const NativeControl::Mute mute(control);
  move_focus(control.window());
  // The system selects the whole text of a field; a field that selects for itself knows better.
  if (control.control().on_got_focus) control.refresh(Aspect::kSelection);
}

/// By the message that also moves the mark of the button that Enter presses. A label leads to the
/// field behind it.
void FormWindow::move_focus(HWND control) {
  const bool label = (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0;
  const HWND to = label ? GetNextDlgTabItem(window(), control, FALSE) : control;
  if (to == nullptr) return;
  SendMessageW(window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(to), TRUE);  // NOLINT
}

/// Without selecting a field's text and without making a button the one that Enter presses.
void FormWindow::lend_focus(NativeControl& control) {
  const NativeControl::Mute mute(control);
  SetFocus(control.window());
}

bool FormWindow::give_wanted_focus() {
  if (wanted_ == nullptr || !takes_input(wanted_->window(), window())) return false;
  give_focus(*std::exchange(wanted_, nullptr));
  refuge_ = false;
  return true;
}

/// Keys go nowhere while the control that had the focus is hidden or disabled. Inside long work the
/// button that stops it takes them. Afterwards the field in which the user was typing gets the
/// focus back, or the first control of a new page takes it.
void FormWindow::find_focus(bool idle) {
  if (!idle) {
    const Control* const stop = form_.cancel_button;
    if (stop == nullptr || !stop->reachable()) return;
    back_to_ = focused_;
    lend_focus(*peer_of(stop));
    refuge_ = true;
    return;
  }
  refuge_ = false;
  const bool new_page = std::exchange(page_is_new_, false);
  NativeControl* const back_to = std::exchange(back_to_, nullptr);
  if (!new_page && back_to != nullptr && back_to->control().parent() != nullptr &&
      takes_input(back_to->window(), window())) {
    lend_focus(*back_to);
    return;
  }
  if (form_.on_got_focus) form_.on_got_focus();
  show_changes();
  if (give_wanted_focus()) return;
  const HWND first = GetNextDlgTabItem(window(), nullptr, FALSE);
  if (first != nullptr) move_focus(first);
}

/// The service of the system that takes them is loaded for the first name, so a window comes up
/// without waiting for it.
void FormWindow::tell_names() {
  names_changed_ = false;
  if (!names_) names_ = std::make_unique<SpokenNames>();
  for (const auto& control : controls_) {
    const std::string& name = control->control().spoken_name();
    if (!name.empty()) names_->set(control->window(), name);
  }
}

void FormWindow::settle(bool idle) {
  if (!ready_ || !form_.loaded()) return;
  if (idle && names_changed_) tell_names();
  if (GetActiveWindow() != window()) return;
  give_wanted_focus();
  if (idle) wanted_ = nullptr;
  if (focus_is_lost() || (idle && (refuge_ || page_is_new_))) find_focus(idle);
  // A button that got the focus back when the window did is not yet the one that Enter presses.
  const HWND focus = GetFocus();
  if (idle && IsChild(window(), focus) != 0 &&
      (SendMessageW(focus, WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON) != 0) {
    move_focus(focus);
  }
  show_changes();
}

void FormWindow::show_pointer() const {
  POINT at{};
  GetCursorPos(&at);
  const HWND under = WindowFromPoint(at);
  if (under != window() && IsChild(window(), under) == 0) return;
  SendMessageW(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),  // NOLINT
               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

void FormWindow::use_dpi(int dpi) {
  dpi_ = dpi;
  const std::optional<Fonts> before = std::exchange(fonts_, std::optional<Fonts>(dpi));
  for (const auto& control : controls_) {
    control->apply_font();
    control->refresh(Aspect::kPlace);
  }
  big_icon_ = load_icon(SM_CXICON, SM_CYICON, dpi);
  small_icon_ = load_icon(SM_CXSMICON, SM_CYSMICON, dpi);
  SendMessageW(window(), WM_SETICON, ICON_BIG, as_lparam(big_icon_.get()));
  SendMessageW(window(), WM_SETICON, ICON_SMALL, as_lparam(small_icon_.get()));
}

/// What the title bar and the borders take at the window's DPI.
SIZE FormWindow::border() const {
  RECT area{};
  AdjustWindowRectExForDpi(&area, static_cast<DWORD>(GetWindowLongPtrW(window(), GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(window(), GWL_EXSTYLE)),
                           static_cast<UINT>(dpi_));
  return {area.right - area.left, area.bottom - area.top};
}

SIZE FormWindow::inner_size() const {
  const int outer = form_.outer_width();
  const LONG width =
      outer > 0 ? pixels_of(outer, dpi_) - border().cx : pixels_of(form_.place().width, dpi_);
  return {width, pixels_of(form_.place().height, dpi_)};
}

SIZE FormWindow::outer_size(Growth growth) const {
  const SIZE inner = inner_size();
  const SIZE around = border();
  return {inner.cx + around.cx + growth.across, inner.cy + around.cy + growth.down};
}

/// Positions are kept at the system's DPI, whatever screen the window is on, so that a remembered
/// position leads back to the same point.
void FormWindow::place_window() {
  const bool was_ready = std::exchange(ready_, false);
  const auto system = static_cast<int>(GetDpiForSystem());
  RECT place{};
  place.left = pixels_of(form_.place().left, system);
  place.top = pixels_of(form_.place().top, system);
  SetWindowPos(window(), nullptr, place.left, place.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  use_dpi(static_cast<int>(GetDpiForWindow(window())));
  const SIZE size = outer_size({});
  RECT owner{};
  if (owner_ != nullptr && form_.place().left == 0 && form_.place().top == 0 &&
      GetWindowRect(owner_, &owner) != 0) {
    place.left = (owner.left + owner.right - size.cx) / 2;
    place.top = (owner.top + owner.bottom - size.cy) / 3;
  }
  place.right = place.left + size.cx;
  place.bottom = place.top + size.cy;
  place = on_screen(place);
  SetWindowPos(window(), nullptr, place.left, place.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  ready_ = was_ready;
}

void FormWindow::on_dpi(int dpi, const RECT& place) {
  const Growth grown{MulDiv(growth_.across, dpi, dpi_), MulDiv(growth_.down, dpi, dpi_)};
  use_dpi(dpi);
  const SIZE needed = outer_size(grown);
  SetWindowPos(window(), nullptr, place.left, place.top,
               std::max(place.right - place.left, needed.cx),
               std::max(place.bottom - place.top, needed.cy), SWP_NOZORDER | SWP_NOACTIVATE);
  on_size();
}

void FormWindow::on_size() {
  RECT area{};
  if (IsIconic(window()) != 0 || GetClientRect(window(), &area) == 0) return;
  growth_ = {};
  if (form_.resizable()) {
    const SIZE designed = inner_size();
    growth_ = {static_cast<int>(area.right - designed.cx),
               static_cast<int>(area.bottom - designed.cy)};
  }
  for (const auto& control : controls_) control->refresh(Aspect::kPlace);
}

void FormWindow::on_move() {
  RECT place{};
  if (!ready_ || IsIconic(window()) != 0 || IsZoomed(window()) != 0) return;
  if (GetWindowRect(window(), &place) == 0) return;
  const auto system = static_cast<int>(GetDpiForSystem());
  form_.take_user_position(twips_of(static_cast<int>(place.left), system),
                           twips_of(static_cast<int>(place.top), system));
}

void FormWindow::limit_size(MINMAXINFO& limits) const {
  if (!form_.resizable() || !fonts_) return;
  const SIZE least = outer_size({});
  limits.ptMinTrackSize = {least.cx, least.cy};
}

void FormWindow::on_drop(WPARAM drop) {
  const auto dropped = reinterpret_cast<HDROP>(drop);  // NOLINT: messages carry handles
  std::wstring path(DragQueryFileW(dropped, 0, nullptr, 0), L'\0');
  DragQueryFileW(dropped, 0, path.data(), static_cast<UINT>(path.size()) + 1);
  DragFinish(dropped);
  if (const auto named = exact_1252(path)) {
    if (form_.on_drop_file) form_.on_drop_file(*named);
  } else if (form_.on_unusable_path) {
    form_.on_unusable_path(nearest_1252(path));
  }
}

void FormWindow::close() {
  // A window under a dialog can still be sent the message by other programs.
  if (IsWindowEnabled(window()) != 0) form_.unload(CloseReason::kCloseBox);
}

void FormWindow::on_command(UINT code, int id, HWND control) {
  if (NativeControl* native = NativeControl::of(control)) return native->on_command(code);
  if (id == IDCANCEL) {
    if (form_.cancel_button != nullptr) form_.cancel_button->take_user_click();
  } else if (id == IDOK) {
    if (form_.default_button != nullptr) form_.default_button->take_user_click();
  } else if (NativeControl* native = peer_of(id)) {
    native->on_command(code);
  }
}

INT_PTR FormWindow::color(WPARAM dc, HWND control) {
  const NativeControl* const native = NativeControl::of(control);
  if (native == nullptr) return FALSE;
  const int color =
      native->control().takes_input() ? system_color_behind(native->control()) : COLOR_3DFACE;
  const auto surface = reinterpret_cast<HDC>(dc);  // NOLINT: messages carry handles
  SetBkColor(surface, GetSysColor(color));
  return as_lparam(GetSysColorBrush(color));
}

INT_PTR FormWindow::answer(LRESULT result) const {
  SetWindowLongPtrW(window(), DWLP_MSGRESULT, result);
  return TRUE;
}

INT_PTR FormWindow::on_message(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_COMMAND:
      on_command(HIWORD(wparam), LOWORD(wparam), from_lparam<HWND__>(lparam));
      return TRUE;
    case WM_NOTIFY: {
      auto& notice = *from_lparam<NMHDR>(lparam);
      NativeControl* const native = NativeControl::of(notice.hwndFrom);
      return native == nullptr ? FALSE : answer(native->on_notify(notice));
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC:
      return color(wparam, from_lparam<HWND__>(lparam));
    case WM_SETCURSOR:
      if (form_.pointer() != Pointer::kHourglass || LOWORD(lparam) != HTCLIENT) return FALSE;
      SetCursor(LoadCursorW(nullptr, IDC_WAIT));
      return answer(TRUE);
    case WM_CLOSE:
      close();
      return TRUE;
    case WM_QUERYENDSESSION:
      return answer(TRUE);
    case WM_ENDSESSION:
      if (wparam != 0) form_.unload(CloseReason::kCode);
      return TRUE;
    case WM_SIZE:
      on_size();
      return TRUE;
    case WM_MOVE:
      on_move();
      return TRUE;
    case WM_GETMINMAXINFO:
      limit_size(*from_lparam<MINMAXINFO>(lparam));
      return TRUE;
    case WM_DPICHANGED:
      on_dpi(LOWORD(wparam), *from_lparam<RECT>(lparam));
      return TRUE;
    case WM_SETTINGCHANGE:
      use_dpi(dpi_);
      return FALSE;
    case WM_DROPFILES:
      on_drop(wparam);
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

#include "platform/win32/controls/native_control.h"

#include <algorithm>
#include <utility>

#include "platform/win32/text_win32.h"
#include "platform/win32/windows/form_window.h"
#include "text/fault.h"

namespace quenda {
namespace {

constexpr unsigned bit(Aspect aspect) { return 1U << static_cast<unsigned>(aspect); }

/// In this order, so that entries are there before they are selected.
constexpr Aspect kShown[] = {Aspect::kPlace, Aspect::kCaption, Aspect::kText,    Aspect::kColumns,
                             Aspect::kRows,  Aspect::kItems,   Aspect::kIndex,   Aspect::kSelection,
                             Aspect::kValue, Aspect::kColour,  Aspect::kEnabled, Aspect::kVisible};

/// A frame as wide as its window with the borders ends where the window's inside does.
Pixels inside(Pixels at, const Control& control, HWND parent) {
  RECT area{};
  if (control.kind() != ControlKind::kFrame || GetClientRect(parent, &area) == 0) return at;
  if (at.left < area.right) at.width = std::min(at.width, static_cast<int>(area.right) - at.left);
  return at;
}

}  // namespace

NativeControl::~NativeControl() {
  if (window_ == nullptr) return;
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_procedure_));
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
}

bool NativeControl::wants_window() const {
  return control_.visible() && (form_.is_up() || !can_wait());
}

void NativeControl::create(HWND parent, int id, bool begins_group) {
  const WindowSpec made = spec();
  const bool reached = made.takes_input && control_.tab_index() >= 0;
  const DWORD tab_stop = reached ? WS_TABSTOP : 0;
  auto* const number = from_lparam<HMENU__>(id);
  const DWORD shown = control_.visible() ? WS_VISIBLE : 0;
  const DWORD locked = is_live() ? 0 : WS_DISABLED;
  const DWORD group = begins_group ? WS_GROUP : 0;
  placed_ =
      inside(laid_out(control_, form_.place().dpi(), form_.place().growth()), control_, parent);
  // Text and state go in here: to change them afterwards would cost as much as the window itself.
  window_ = CreateWindowExW(made.extended, made.window_class, wide(made.text).c_str(),
                            WS_CHILD | made.style | tab_stop | group | shown | locked, placed_.left,
                            placed_.top, placed_.width, placed_.height, parent, number,
                            GetModuleHandleW(nullptr), nullptr);
  if (window_ == nullptr) raise_fault(kFaultOutOfMemory);
  // By the window's own words: the subclassing of the common controls looks its data up twice for
  // every message, which takes longer than all the rest of making a window.
  SetWindowLongPtrW(window_, GWLP_USERDATA, as_lparam(this));
  system_procedure_ = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
      window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&NativeControl::procedure)));
  apply_font();
  prepare();
}

void NativeControl::refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::kZOrder:
      in_front_ = true;
      if (window_ == nullptr) break;
      SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      break;
    case Aspect::kFocus:
      form_.focus().want(*this);
      break;
    default:
      if (aspect == Aspect::kCaption || aspect == Aspect::kVisible) form_.captions().changed();
      noted_ |= bit(aspect);
  }
}

void NativeControl::note_all() {
  for (const Aspect aspect : kShown) {
    if (aspect != Aspect::kColour) noted_ |= bit(aspect);
  }
}

void NativeControl::show_changes() {
  if (noted_ == 0) return;
  if (window_ == nullptr) {
    if (!wants_window()) return;
    form_.create_late(*this);
  }
  const unsigned noted = std::exchange(noted_, 0);
  const Mute mute(*this);
  for (const Aspect aspect : kShown) {
    if ((noted & bit(aspect)) == 0) continue;
    show_common(aspect);
    show(aspect);
  }
}

void NativeControl::show_common(Aspect aspect) {
  switch (aspect) {
    case Aspect::kPlace:
      place();
      break;
    case Aspect::kCaption:
      if (!control_.spoken_name().empty()) form_.names().changed();
      break;
    case Aspect::kIndex:
    case Aspect::kRows:
    case Aspect::kItems:
      form_.names().changed();
      break;
    case Aspect::kEnabled:
      if ((IsWindowEnabled(window_) != 0) != is_live()) {
        EnableWindow(window_, is_live() ? TRUE : FALSE);
      }
      break;
    case Aspect::kVisible:
      if (((GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0) != control_.visible()) {
        ShowWindow(window_, control_.visible() ? SW_SHOWNA : SW_HIDE);
      }
      break;
    case Aspect::kColour:
      InvalidateRect(window_, nullptr, TRUE);
      break;
    default:
      break;
  }
}

bool NativeControl::is_live() const {
  switch (control_.kind()) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kPicture:
    case ControlKind::kStatusBar:
      return control_.enabled();
    default:
      return control_.takes_input();
  }
}

void NativeControl::place() {
  const Pixels to = inside(laid_out(control_, form_.place().dpi(), form_.place().growth()),
                           control_, GetParent(window_));
  if (to == placed_) return;
  placed_ = to;
  SetWindowPos(window_, nullptr, to.left, to.top, to.width, to.height,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

void NativeControl::apply_font() {
  const HFONT font = form_.place().fonts().plain.get();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

void NativeControl::apply_colors() {
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

DarkPen NativeControl::pen(HDC dc) const {
  return {dc, form_.colors(), form_.place().fonts().plain.get(), form_.place().dpi()};
}

void NativeControl::paint_by(void (*draw)(const DarkPen& pen, HWND window)) const {
  PAINTSTRUCT paint{};
  const HDC screen = BeginPaint(window_, &paint);
  if (screen == nullptr) return;
  RECT area{};
  GetClientRect(window_, &area);
  const MemoryDc aside(CreateCompatibleDC(screen));
  const Bitmap picture(CreateCompatibleBitmap(screen, area.right, area.bottom));
  if (aside && picture) {
    const Selected bitmap(aside.get(), picture.get());
    draw(pen(aside.get()), window_);
    BitBlt(screen, 0, 0, area.right, area.bottom, aside.get(), 0, 0, SRCCOPY);
  }
  EndPaint(window_, &paint);
}

void NativeControl::set_window_text(std::string_view text) const {
  const std::wstring shown = wide(text);
  if (window_text(window_) != shown) SetWindowTextW(window_, shown.c_str());
}

LRESULT CALLBACK NativeControl::procedure(HWND window, UINT message, WPARAM wparam,
                                          LPARAM lparam) noexcept {
  auto* const self = from_lparam<NativeControl>(GetWindowLongPtrW(window, GWLP_USERDATA));
  return self == nullptr ? DefWindowProcW(window, message, wparam, lparam)
                         : self->handle(message, wparam, lparam);
}

LRESULT NativeControl::object_named(WPARAM wparam, LPARAM lparam) {
  // Whatever the reader asks for: the system has to know the name by then.
  Spoken answer = spoken();
  if (answer.role == 0) answer = form_.names().to_answer(*this);
  const bool wanted = static_cast<LONG>(lparam) == OBJID_CLIENT;
  return wanted && !answer.name.empty() ? answer_with(window_, wparam, answer) : 0;
}

LRESULT NativeControl::handle(UINT message, WPARAM wparam, LPARAM lparam) noexcept {
  struct Answer {
    bool taken = false;
    LRESULT result = 0;
  };
  MessageLoop& loop = form_.loop();
  const auto answer = loop.at_edge(
      [&] {
        Answer given;
        if (message == WM_GETOBJECT) given.result = object_named(wparam, lparam);
        given.taken = given.result != 0 || on_message(message, wparam, lparam, given.result);
        return given;
      },
      Answer{});
  if (answer.taken) return answer.result;
  const LRESULT result = CallWindowProcW(system_procedure_, window_, message, wparam, lparam);
  if (message == WM_NCPAINT && form_.dark()) {
    draw_border(form_.colors(), window_, form_.colors()[tone_behind(control_)]);
  }
  if (message == WM_SETFOCUS) {
    form_.focus().took(*this);
    if (!muted_) loop.at_edge([&] { control_.take_user_focus(); });
  }
  return result;
}

}  // namespace quenda

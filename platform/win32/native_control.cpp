#include "platform/win32/native_control.h"

#include <utility>

#include "platform/win32/form_window.h"
#include "platform/win32/text_win32.h"
#include "support/fault.h"

namespace quenda {
namespace {

constexpr UINT_PTR kSubclass = 1;
/// The property by which a window leads back to its control.
constexpr const wchar_t* kProperty = L"Quenda.Control";

constexpr unsigned bit(Aspect aspect) { return 1U << static_cast<unsigned>(aspect); }

/// In this order, so that entries are there before they are selected.
constexpr Aspect kShown[] = {Aspect::kPlace, Aspect::kCaption, Aspect::kText,    Aspect::kColumns,
                             Aspect::kRows,  Aspect::kItems,   Aspect::kIndex,   Aspect::kSelection,
                             Aspect::kValue, Aspect::kColour,  Aspect::kEnabled, Aspect::kVisible};

}  // namespace

NativeControl::~NativeControl() {
  if (window_ == nullptr) return;
  RemovePropW(window_, kProperty);
  RemoveWindowSubclass(window_, &NativeControl::procedure, kSubclass);
}

void NativeControl::create(HWND parent, int id) {
  const WindowSpec made = spec();
  const bool reached = made.takes_input && control_.tab_index() >= 0;
  const DWORD tab_stop = reached ? WS_TABSTOP : 0;
  auto* const number = from_lparam<HMENU__>(id);
  const DWORD shown = control_.visible() ? WS_VISIBLE : 0;
  const DWORD locked = is_live() ? 0 : WS_DISABLED;
  placed_ = laid_out(control_, form_.dpi(), form_.growth());
  window_ = CreateWindowExW(made.extended, made.window_class, L"",
                            WS_CHILD | made.style | tab_stop | shown | locked, placed_.left,
                            placed_.top, placed_.width, placed_.height, parent, number,
                            GetModuleHandleW(nullptr), nullptr);
  if (window_ == nullptr) raise_fault(kFaultOutOfMemory);
  SetPropW(window_, kProperty, this);
  SetWindowSubclass(window_, &NativeControl::procedure, kSubclass,
                    reinterpret_cast<DWORD_PTR>(this));
  apply_font();
  prepare();
}

NativeControl* NativeControl::of(HWND window) {
  return window == nullptr ? nullptr : static_cast<NativeControl*>(GetPropW(window, kProperty));
}

void NativeControl::refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::kZOrder:
      SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      break;
    case Aspect::kFocus:
      form_.focus().want(*this);
      break;
    default:
      if (aspect == Aspect::kCaption || aspect == Aspect::kVisible) form_.captions_changed();
      noted_ |= bit(aspect);
  }
}

void NativeControl::note_all() {
  for (const Aspect aspect : kShown) noted_ |= bit(aspect);
}

void NativeControl::show_changes() {
  if (noted_ == 0) return;
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
      if (!control_.spoken_name().empty()) form_.names_changed();
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
  const Pixels to = laid_out(control_, form_.dpi(), form_.growth());
  if (to == placed_) return;
  placed_ = to;
  SetWindowPos(window_, nullptr, to.left, to.top, to.width, to.height,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

void NativeControl::apply_font() {
  const HFONT font = form_.fonts().plain.get();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void NativeControl::set_window_text(std::string_view text) const {
  const std::wstring shown = wide(text);
  if (window_text(window_) != shown) SetWindowTextW(window_, shown.c_str());
}

LRESULT CALLBACK NativeControl::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                                          UINT_PTR /*id*/, DWORD_PTR self) noexcept {
  auto& native = *from_lparam<NativeControl>(static_cast<LPARAM>(self));
  struct Answer {
    bool taken = false;
    LRESULT result = 0;
  };
  MessageLoop& loop = native.form_.loop();
  const auto answer = loop.at_edge(
      [&] {
        Answer given;
        given.taken = native.on_message(message, wparam, lparam, given.result);
        return given;
      },
      Answer{});
  if (answer.taken) return answer.result;
  const LRESULT result = DefSubclassProc(window, message, wparam, lparam);
  if (message == WM_SETFOCUS) {
    native.form_.focus().took(native);
    if (!native.muted_) loop.at_edge([&] { native.control_.take_user_focus(); });
  }
  return result;
}

}  // namespace quenda

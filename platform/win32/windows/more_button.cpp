#include "platform/win32/windows/more_button.h"

#include <commctrl.h>

#include <utility>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"

namespace quenda {
namespace {

constexpr UINT_PTR kSubclass = 1;
// The system hands its hook no context.
MoreButtonInBox* the_button = nullptr;  // NOLINT(*-avoid-non-const-global-variables)

}  // namespace

MoreButtonInBox::MoreButtonInBox(MessageLoop& loop, const MoreButton& button)
    : loop_(loop),
      button_(button),
      before_(std::exchange(the_button, this)),
      hook_(SetWindowsHookExW(WH_CBT, &on_window, nullptr, GetCurrentThreadId())) {}

MoreButtonInBox::~MoreButtonInBox() {
  if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
  the_button = before_;
}

/// The box is complete when it is about to become active.
LRESULT CALLBACK MoreButtonInBox::on_window(int code, WPARAM wparam, LPARAM lparam) noexcept {
  if (code == HCBT_ACTIVATE && the_button != nullptr && !the_button->found_) {
    auto* const box = from_lparam<HWND__>(static_cast<LPARAM>(wparam));
    const HWND help = GetDlgItem(box, IDHELP);
    if (help != nullptr) {
      the_button->found_ = true;
      SetWindowTextW(help, wide(the_button->button_.caption).c_str());
      SetWindowSubclass(box, &box_procedure, kSubclass, reinterpret_cast<DWORD_PTR>(the_button));
    }
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

LRESULT CALLBACK MoreButtonInBox::box_procedure(HWND box, UINT message, WPARAM wparam,
                                                LPARAM lparam, UINT_PTR id,
                                                DWORD_PTR context) noexcept {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(box, &box_procedure, id);
  if (message == WM_COMMAND && LOWORD(wparam) == IDHELP) {
    const auto* const self = from_lparam<MoreButtonInBox>(static_cast<LPARAM>(context));
    self->loop_.at_edge([self] { self->button_.on_click(); });
    return 0;
  }
  return DefSubclassProc(box, message, wparam, lparam);
}

}  // namespace quenda

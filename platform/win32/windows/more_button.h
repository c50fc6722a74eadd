#pragma once

#include "platform/dialogs.h"
#include "platform/win32/windows/message_loop.h"

namespace quenda {

/// For as long as it lives, the next message box of this thread that has a help button shows a
/// button of the program's own in its place.
class MoreButtonInBox {
 public:
  MoreButtonInBox(MessageLoop& loop, const MoreButton& button);
  MoreButtonInBox(const MoreButtonInBox&) = delete;
  MoreButtonInBox& operator=(const MoreButtonInBox&) = delete;
  ~MoreButtonInBox();

 private:
  static LRESULT CALLBACK on_window(int code, WPARAM wparam, LPARAM lparam) noexcept;
  static LRESULT CALLBACK box_procedure(HWND box, UINT message, WPARAM wparam, LPARAM lparam,
                                        UINT_PTR id, DWORD_PTR context) noexcept;

  MessageLoop& loop_;
  const MoreButton& button_;
  MoreButtonInBox* before_;
  HHOOK hook_;
  bool found_ = false;
};

}  // namespace quenda

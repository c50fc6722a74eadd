#include "platform/win32/windows/dropped_file.h"

#include <shellapi.h>

#include <string>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"

namespace quenda {

void take_drop(const Form& form, WPARAM drop, bool taken) {
  auto* const dropped = from_lparam<HDROP__>(static_cast<LPARAM>(drop));
  std::wstring path(DragQueryFileW(dropped, 0, nullptr, 0), L'\0');
  DragQueryFileW(dropped, 0, path.data(), static_cast<UINT>(path.size()) + 1);
  DragFinish(dropped);
  if (path.empty() || !taken) return;
  if (const auto named = exact_1252(path)) {
    if (form.on_drop_file) form.on_drop_file(*named);
  } else if (form.on_unusable_path) {
    form.on_unusable_path(nearest_1252(path));
  }
}

}  // namespace quenda

#include "platform/win32/windows/dialogs_win32.h"

#include <commdlg.h>

#include <cstring>
#include <string>
#include <utility>

#include "platform/controls/form.h"
#include "platform/win32/com/com_support.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/events_win32.h"
#include "platform/win32/windows/more_button.h"
#include "text/fault.h"

namespace quenda {
namespace {

constexpr DWORD kLongestPath = 32768;
/// The command by which the file list of the dialog changes to the view with size and date.
constexpr WPARAM kDetailsView = 0x702C;

/// Descriptions and patterns as the dialog wants them: each ended by NUL, one more at the end.
std::wstring filter_text(const std::vector<FileFilter>& filters) {
  std::wstring text;
  for (const FileFilter& filter : filters) {
    text += wide(filter.description);
    text += L'\0';
    text += wide(filter.pattern);
    text += L'\0';
  }
  text += L'\0';
  return text;
}

/// What the procedure of the open dialog is given.
struct HookContext {
  MessageLoop& loop;
  const DialogHook& hook;
};

/// Shows the files with size and date, by which users tell exports apart.
void show_details(HWND dialog) {
  const HWND view = FindWindowExW(dialog, nullptr, L"SHELLDLL_DefView", nullptr);
  if (view != nullptr) SendMessageW(view, WM_COMMAND, kDetailsView, 0);
}

UINT_PTR CALLBACK hook_procedure(HWND page, UINT message, WPARAM /*wparam*/,
                                 LPARAM lparam) noexcept {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(page, DWLP_USER, from_lparam<OPENFILENAMEW>(lparam)->lCustData);
  }
  const auto* const context = from_lparam<HookContext>(GetWindowLongPtrW(page, DWLP_USER));
  if (message != WM_NOTIFY || context == nullptr) return 0;
  if (from_lparam<NMHDR>(lparam)->code != CDN_FOLDERCHANGE) return 0;
  context->loop.at_edge([&] { context->hook([page] { show_details(GetParent(page)); }); });
  return 0;
}

/// The window that a message belongs to: the active one, or, while the user works in another
/// program, the one that takes input, so that the message comes forward with it.
HWND message_owner() {
  HWND owner = GetActiveWindow();
  if (owner != nullptr) return owner;
  const auto take_usable = [](HWND window, LPARAM found) -> BOOL {
    if (IsWindowVisible(window) == 0 || IsWindowEnabled(window) == 0) return TRUE;
    *from_lparam<HWND>(found) = window;
    return FALSE;
  };
  EnumThreadWindows(GetCurrentThreadId(), take_usable, as_lparam(&owner));
  return owner;
}

/// One of the system's file dialogs.
class FileDialog {
 public:
  FileDialog(const std::vector<FileFilter>& filters, std::string_view name)
      : filter_(filter_text(filters)), path_(wide(name)) {
    path_.resize(kLongestPath, L'\0');
    shown_.lStructSize = sizeof shown_;
    shown_.hwndOwner = message_owner();
    shown_.lpstrFilter = filters.empty() ? nullptr : filter_.c_str();
    shown_.lpstrFile = path_.data();
    shown_.nMaxFile = kLongestPath;
    shown_.Flags =
        OFN_EXPLORER | OFN_ENABLESIZING | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  }
  FileDialog(const FileDialog&) = delete;
  FileDialog& operator=(const FileDialog&) = delete;
  ~FileDialog() = default;

  [[nodiscard]] OPENFILENAMEW& shown() { return shown_; }

  template <class Show>
  ChosenFile run(MessageLoop& loop, Show show) {
    const ApartmentScope apartment;
    const SystemDialogGuard guard(loop.presses());
    const bool chosen = show(&shown_) != FALSE;
    loop.rethrow();
    if (!chosen) return {};
    path_.resize(path_.find(L'\0'));
    if (auto named = exact_1252(path_)) return {.path = std::move(*named), .unusable = {}};
    return {.path = {}, .unusable = nearest_1252(path_)};
  }

 private:
  std::wstring filter_;
  std::wstring path_;
  OPENFILENAMEW shown_{};
};

}  // namespace

MessageAnswer Win32Dialogs::message_box(std::string_view text, MessageStyle style,
                                        std::string_view title) {
  return show_box(text, static_cast<UINT>(style), title);
}

MessageAnswer Win32Dialogs::message_box_with(const MoreButton& more, std::string_view text,
                                             MessageStyle style, std::string_view title) {
  const MoreButtonInBox shown(loop_, more);
  return show_box(text, static_cast<UINT>(style) | MB_HELP, title);
}

MessageAnswer Win32Dialogs::show_box(std::string_view text, UINT style, std::string_view title) {
  loop_.show_changes();
  const HWND owner = message_owner();
  const UINT modal = owner == nullptr ? MB_TASKMODAL : MB_APPLMODAL;
  const SystemDialogGuard guard(loop_.presses());
  const UINT forward = GetActiveWindow() == nullptr ? MB_SETFOREGROUND : 0;
  const int answer =
      MessageBoxW(owner, wide(text).c_str(), wide(title).c_str(), style | modal | forward);
  loop_.rethrow();
  return static_cast<MessageAnswer>(answer);
}

ChosenFile Win32Dialogs::open_file(const std::vector<FileFilter>& filters, const DialogHook& hook) {
  loop_.show_changes();
  FileDialog dialog(filters, "");
  dialog.shown().Flags |= OFN_ENABLEHOOK | OFN_FILEMUSTEXIST;
  dialog.shown().lpfnHook = &hook_procedure;
  HookContext context{loop_, hook};
  dialog.shown().lCustData = as_lparam(&context);
  return dialog.run(loop_, [](OPENFILENAMEW* shown) { return GetOpenFileNameW(shown); });
}

ChosenFile Win32Dialogs::save_file(const std::vector<FileFilter>& filters, std::string_view name) {
  loop_.show_changes();
  FileDialog dialog(filters, name);
  dialog.shown().Flags |= OFN_OVERWRITEPROMPT;
  // Any ending here has the dialog add that of the chosen filter.
  dialog.shown().lpstrDefExt = L"csv";
  return dialog.run(loop_, [](OPENFILENAMEW* shown) { return GetSaveFileNameW(shown); });
}

bool Win32Dialogs::copy_text(std::string_view text) {
  const std::wstring shown = wide(text);
  const std::size_t bytes = (shown.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (memory == nullptr) raise_fault(kFaultOutOfMemory);
  std::memcpy(GlobalLock(memory), shown.c_str(), bytes);
  GlobalUnlock(memory);
  // What the clipboard has taken belongs to it.
  bool taken = false;
  if (OpenClipboard(message_owner()) != 0) {
    taken = EmptyClipboard() != 0 && SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    CloseClipboard();
  }
  if (!taken) GlobalFree(memory);
  return taken;
}

}  // namespace quenda

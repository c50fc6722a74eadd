#include "platform/win32/library_folders.h"

#include "platform/win32/windows_headers.h"

namespace quenda {

void load_from_system_folders_only() noexcept {
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  SetDllDirectoryW(L"");
}

}  // namespace quenda

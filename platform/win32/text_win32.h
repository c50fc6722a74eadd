#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/win32/windows_headers.h"

// The border between the tool's texts (Windows-1252 bytes) and the system's (UTF-16 units).
namespace quenda {

std::wstring wide(std::string_view text);

/// The text in Windows-1252; nothing when it has a character that the code page lacks. For paths,
/// where a look-alike character would name another file.
std::optional<std::string> exact_1252(std::wstring_view text);

/// The text in Windows-1252, a character that the code page lacks replaced by the nearest one it
/// has, or "?". For texts that people read.
std::string nearest_1252(std::wstring_view text);

/// A path in Windows-1252, by way of the file's short name where the long one cannot be written so;
/// nothing when there is no such name either.
std::optional<std::string> usable_path(const std::wstring& path);

/// The text in a window.
std::wstring window_text(HWND window);

}  // namespace quenda

#include "platform/win32/text_win32.h"

#include <algorithm>

#include "text/code_page_1252.h"

namespace quenda {

std::wstring wide(std::string_view text) {
  std::wstring result(text.size(), L'\0');
  std::transform(text.begin(), text.end(), result.begin(), [](char c) {
    return static_cast<wchar_t>(unicode_of_1252(static_cast<unsigned char>(c)));
  });
  return result;
}

std::optional<std::string> exact_1252(std::wstring_view text) {
  std::string result;
  result.reserve(text.size());
  for (const wchar_t unit : text) {
    const int byte = byte_1252_of(static_cast<char32_t>(unit));
    if (byte < 0) return std::nullopt;
    result += static_cast<char>(byte);
  }
  return result;
}

std::string nearest_1252(std::wstring_view text) {
  if (auto exact = exact_1252(text)) return *exact;
  const auto units = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(1252, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(1252, 0, text.data(), units, result.data(), size, nullptr, nullptr);
  return result;
}

std::optional<std::string> usable_path(const std::wstring& path) {
  if (auto exact = exact_1252(path)) return exact;
  std::wstring name(MAX_PATH, L'\0');
  DWORD length = GetShortPathNameW(path.c_str(), name.data(), MAX_PATH);
  if (length > MAX_PATH) {
    name.resize(length);
    length = GetShortPathNameW(path.c_str(), name.data(), length);
  }
  name.resize(length);
  return name.empty() ? std::nullopt : exact_1252(name);
}

std::wstring window_text(HWND window) {
  const int length = GetWindowTextLengthW(window);
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), length + 1)));
  return text;
}

}  // namespace quenda

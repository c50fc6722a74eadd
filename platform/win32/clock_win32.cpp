#include "platform/win32/clock_win32.h"

#include "platform/win32/windows_headers.h"

namespace quenda {

LocalTime Win32Clock::now() const {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

std::uint64_t Win32Clock::milliseconds() const { return GetTickCount64(); }

}  // namespace quenda

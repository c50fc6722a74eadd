#include "platform/win32/com/busy_program.h"

namespace quenda {
namespace {

constexpr DWORD kPause = 50;  // milliseconds
/// What office programs answer while a dialog of theirs is open.
constexpr auto kDialogIsOpen = static_cast<HRESULT>(0x800AC472);

}  // namespace

bool means_busy(HRESULT result) {
  return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER ||
         result == kDialogIsOpen;
}

bool means_leaving(HRESULT result) {
  return result == CO_E_SERVER_STOPPING || result == RPC_E_DISCONNECTED ||
         result == HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE) ||
         result == HRESULT_FROM_WIN32(RPC_S_CALL_FAILED);
}

bool Patience::goes_on() {
  const ULONGLONG now = GetTickCount64();
  if (!busy_since_) busy_since_ = now;
  return now < *busy_since_ + limits_.busy && pause();
}

bool Patience::pause() {
  Sleep(kPause);
  return !gives_up_();
}

}  // namespace quenda

#include "platform/win32/busy_filter.h"

namespace quenda {
namespace {

constexpr DWORD kRetryDelay = 100;  // milliseconds; smaller values mean "at once"
constexpr DWORD kGiveUp = static_cast<DWORD>(-1);
/// What office programs answer while a dialog of theirs is open.
constexpr auto kDialogIsOpen = static_cast<HRESULT>(0x800AC472);

}  // namespace

HRESULT BusyFilter::QueryInterface(REFIID wanted, void** result) {
  if (result == nullptr) return E_POINTER;
  const bool known =
      IsEqualIID(wanted, IID_IUnknown) != 0 || IsEqualIID(wanted, IID_IMessageFilter) != 0;
  *result = known ? this : nullptr;
  return known ? S_OK : E_NOINTERFACE;
}

DWORD BusyFilter::HandleInComingCall(DWORD /*type*/, HTASK /*caller*/, DWORD /*ticks*/,
                                     LPINTERFACEINFO /*info*/) {
  return SERVERCALL_ISHANDLED;
}

DWORD BusyFilter::RetryRejectedCall(HTASK /*called*/, DWORD ticks, DWORD /*type*/) {
  return ticks < kBusyLimit ? kRetryDelay : kGiveUp;
}

DWORD BusyFilter::MessagePending(HTASK /*called*/, DWORD /*ticks*/, DWORD /*type*/) {
  MSG message{};
  while (PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE) != 0) {
    DispatchMessageW(&message);
  }
  return PENDINGMSG_WAITDEFPROCESS;
}

bool means_busy(HRESULT result) {
  return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER ||
         result == kDialogIsOpen;
}

bool means_leaving(HRESULT result) {
  return result == CO_E_SERVER_STOPPING || result == RPC_E_DISCONNECTED ||
         result == HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE) ||
         result == HRESULT_FROM_WIN32(RPC_S_CALL_FAILED);
}

}  // namespace quenda

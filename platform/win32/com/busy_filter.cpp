#include "platform/win32/com/busy_filter.h"

#include <dde.h>

namespace quenda {
namespace {

constexpr DWORD kRetryDelay = 100;  // milliseconds; smaller values mean "at once"
/// How long the system itself repeats a call: it takes no input meanwhile, so longer patience is
/// for the caller, who does.
constexpr DWORD kRetryLimit = 500;
constexpr DWORD kGiveUp = static_cast<DWORD>(-1);
/// What office programs answer while a dialog of theirs is open.
constexpr auto kDialogIsOpen = static_cast<HRESULT>(0x800AC472);

/// What is handled while a call is under way: painting, and the phone book, which must not find the
/// tool hanging. Input waits.
struct Range {
  UINT first;
  UINT last;
};
constexpr Range kHandledMeanwhile[] = {
    {WM_PAINT, WM_PAINT}, {WM_TIMER, WM_TIMER}, {WM_DDE_FIRST, WM_DDE_LAST}};

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
  return ticks < kRetryLimit ? kRetryDelay : kGiveUp;
}

DWORD BusyFilter::MessagePending(HTASK /*called*/, DWORD /*ticks*/, DWORD /*type*/) {
  for (const auto& [first, last] : kHandledMeanwhile) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE) != 0) {
      DispatchMessageW(&message);
    }
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

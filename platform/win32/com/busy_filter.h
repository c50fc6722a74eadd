#pragma once

#include "platform/win32/com/com_support.h"

namespace quenda {

/// How long a program that says it is busy is asked again, in milliseconds.
inline constexpr DWORD kBusyLimit = 10000;
/// How long a program that is about to end is asked for again, in milliseconds. Where one has died,
/// the system may go on offering it, so this is not the time to be patient.
inline constexpr DWORD kLeavingLimit = 3000;

#ifdef __GNUC__
// Interfaces of the component system have no virtual destructor; they are never deleted.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// Asks a busy program again instead of giving up at once, and keeps the tool's window painted and
/// the phone book answered while a call is under way. In force for as long as it lives.
class BusyFilter final : public IMessageFilter {
 public:
  BusyFilter() { CoRegisterMessageFilter(this, before_.out()); }
  BusyFilter(const BusyFilter&) = delete;
  BusyFilter& operator=(const BusyFilter&) = delete;
  ~BusyFilter() { CoRegisterMessageFilter(before_.get(), nullptr); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) override;
  // It lives in its owner, so counting references would be for show.
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD type, HTASK caller, DWORD ticks,
                                             LPINTERFACEINFO info) override;
  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK called, DWORD ticks, DWORD type) override;
  DWORD STDMETHODCALLTYPE MessagePending(HTASK called, DWORD ticks, DWORD type) override;

 private:
  ComPtr<IMessageFilter> before_;
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

/// Whether a call's result means that the program called is busy.
bool means_busy(HRESULT result);
/// Whether the result of a creation means that the program was found while it was about to end. The
/// next attempt starts it anew.
bool means_leaving(HRESULT result);

}  // namespace quenda

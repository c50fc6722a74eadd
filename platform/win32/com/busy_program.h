#pragma once

#include <functional>
#include <optional>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// Whether a call's result means that the program called is busy.
bool means_busy(HRESULT result);
/// Whether the result of a creation means that the program was found while it was about to end. The
/// next attempt starts it anew.
bool means_leaving(HRESULT result);

/// How long a program is asked again, in milliseconds.
struct PatienceLimits {
  ULONGLONG busy = 10000;
  /// For one that is about to end. Where one has died, the system may go on offering it, so this is
  /// not the time to be patient.
  ULONGLONG leaving = 3000;
};

/// Makes calls again while the program called is busy. The patience is for one wait as a whole: a
/// program that turns down every call must not cost it for each of them. A call that comes through
/// ends the wait.
class Patience {
 public:
  /// With `gives_up` the caller ends a wait before its time.
  explicit Patience(std::function<bool()> gives_up, PatienceLimits limits = {})
      : gives_up_(std::move(gives_up)), limits_(limits) {}

  template <class Call>
  HRESULT with(Call call) {
    HRESULT result = call();
    while (means_busy(result) && goes_on()) result = call();
    if (!means_busy(result)) busy_since_.reset();
    return result;
  }
  /// The same for a creation, which can also find a program that is about to end.
  template <class Call>
  HRESULT with_creation(Call call) {
    busy_since_.reset();
    HRESULT result = with(call);
    for (ULONGLONG end = GetTickCount64() + limits_.leaving;
         means_leaving(result) && GetTickCount64() < end && pause();) {
      result = with(call);
    }
    return result;
  }

 private:
  /// Waits a little; false when the patience is over.
  bool goes_on();
  bool pause();

  std::function<bool()> gives_up_;
  PatienceLimits limits_;
  std::optional<ULONGLONG> busy_since_;
};

}  // namespace quenda

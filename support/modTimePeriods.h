#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"

namespace quenda {

class clsErrorHandling;
class System;

/// Loose date texts as dates, and now as text. Other programs of the suite use it; this one does
/// not.
class modTimePeriods {
 public:
  modTimePeriods(clsErrorHandling& errors, const Clock& clock, const System& system)
      : errors_(errors), clock_(clock), system_(system) {}

  /// The date, today for an empty text. An empty separator becomes the system's, for the caller
  /// too.
  std::string GetFormatedDateByString(std::string_view date, std::string& separator,
                                      bool year_first, bool no_year);
  std::string GetFormatedTimeNow();
  /// The system's date separator; looked up once.
  std::string GetLimiter();
  /// 1899-12-30 when the texts name no date.
  LocalTime CDateNew(std::string_view date, std::string_view time);
  std::string DateClean(std::string_view text);

 private:
  clsErrorHandling& errors_;
  const Clock& clock_;
  const System& system_;
  std::string limiter_;  // empty until it has been found
};

}  // namespace quenda

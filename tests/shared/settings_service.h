#pragma once

#include "settings/modAPI_INI.h"
#include "tests/shared/error_service.h"

namespace quenda {

/// The settings of a suite whose program lies in "C:\\Quenda" and whose data lies in "D:".
struct SettingsService : ErrorService {
  SuitePaths paths{"C:\\Quenda", "", "D:", "D:\\data\\", false};
  modAPI_INI ini{errors, files, paths};
};

}  // namespace quenda

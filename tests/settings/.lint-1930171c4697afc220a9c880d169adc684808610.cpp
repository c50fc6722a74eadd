#include "tests/settings/import_settings_test.cpp"  // NOLINT
#include "tests/settings/ini_contract_test.cpp"  // NOLINT
#include "tests/settings/ini_profile_own.cpp"  // NOLINT
#include "tests/settings/ini_text_test.cpp"  // NOLINT
#include "tests/settings/modAPI_INI_test.cpp"  // NOLINT
#include "tests/settings/suite_paths_test.cpp"  // NOLINT

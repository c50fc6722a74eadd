#include "tests/settings/modLanguage_test.cpp"  // NOLINT

#pragma once

#include <string>
#include <string_view>

// Which program this is, as the build knows it: the version of the project, and what was built.
namespace quenda {

extern const int kVersionMajor;
extern const int kVersionMinor;

/// The first characters of the commit, with a "+" behind it when files had been changed since;
/// "unknown" where the sources lie outside of git.
std::string_view build_commit();

/// "1.17 (4f1c8b1d02)"
std::string build_version();

}  // namespace quenda

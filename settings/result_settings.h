#pragma once

#include <string>

namespace quenda {

class modAPI_INI;

/// What an import leaves behind besides the book. Nothing unless somebody has asked for it.
struct ResultSettings {
  bool backup = false;  // copies the book before it is written
  std::string report;   // file that tells of every number; set by hand
};

/// Reads them; what cannot be read counts as not asked for.
ResultSettings load_result_settings(modAPI_INI& ini);
/// Writes the key once it has been on; a file in which it never stood stays as it is.
void save_backup(modAPI_INI& ini, bool backup);

}  // namespace quenda

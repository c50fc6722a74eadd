#pragma once

#include <string>
#include <string_view>

namespace quenda {

class clsErrorHandling;
class modAPI_INI;
class System;
struct SuiteSpecs;

/// Where the suite lies on this machine.
struct SuitePaths {
  std::string program_folder;  // executables, "\base\"; without "\" at the end
  std::string common_folder;   // the suite's folder for all users; without "\" at the end
  std::string data_root;       // settings and logs; without "\" at the end
  std::string book_folder;     // the phone book; with "\" at the end
  bool book_refresh = false;

  /// The phone book file.
  [[nodiscard]] std::string book_file() const;
};

/// What the choice of the data root depends on.
struct DataRootChoice {
  std::string_view setting;  // "1" (or another number), "0", or a folder
  std::string_view program_folder;
  std::string_view common_folder;
  bool program_folder_protected = false;  // users may not write there
};

/// Whether the outer path occurs in that of the folder, compared as Windows compares paths. Nothing
/// lies inside an empty path.
bool lies_inside(std::string_view folder, std::string_view outer);

/// The data root without "\" at the end: the common folder for a number, the program folder for 0
/// and the empty text (unless it is protected), else the folder itself.
std::string choose_data_root(const DataRootChoice& choice);

/// The phone book folder with "\" at the end: the folder of the settings, or the data folder for an
/// empty or numeric setting.
std::string choose_book_folder(std::string_view setting, std::string_view data_root);

/// Reads the switches and finds the suite's folders. `paths.program_folder` is set first and stays
/// set. After a fault the user sees a box, and the result is false.
bool LoadSavePaths(clsErrorHandling& errors, modAPI_INI& ini, const System& system,
                   SuitePaths& paths, SuiteSpecs& specs);

}  // namespace quenda

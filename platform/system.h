#pragma once

#include <string>
#include <string_view>

namespace quenda {

/// Numbers of the shell's special folders that the suite knows.
enum SpecialFolder : int { kCommonApplicationData = 35, kProgramFiles = 38 };

/// What the tool asks the operating system about the installation and itself.
class System {
 public:
  virtual ~System() = default;
  /// Path of a special folder by its shell number, without "\" at the end; empty when the system
  /// does not know it.
  [[nodiscard]] virtual std::string special_folder(int number) const = 0;
  /// Folder of the executable, without "\" at the end.
  [[nodiscard]] virtual std::string program_folder() const = 0;
  /// Name of the executable without folder and extension; "Import" for the windowed tool.
  [[nodiscard]] virtual std::string executable_name() const = 0;
  /// The arguments as typed, without the program's own name.
  [[nodiscard]] virtual std::string command_line() const = 0;
  /// Whether the tool runs already for this user.
  [[nodiscard]] virtual bool previous_instance() const = 0;
  /// Whether users may not write below the program-files folder.
  [[nodiscard]] virtual bool protects_program_folders() const = 0;
  /// The path with the long names of its folders in place of short ones ("C:\PROGRA~1"); the path
  /// itself where there is no such folder, and on systems without short names.
  [[nodiscard]] virtual std::string long_path(std::string_view path) const {
    return std::string(path);
  }
  /// Today in the short date format of the user's country ("02.03.2014").
  [[nodiscard]] virtual std::string short_date_today() const = 0;
  /// Opens a document or an address with its program, over the active window. The shell's result
  /// code: 33 and more is success.
  virtual int open_with_shell(std::string_view verb, std::string_view file,
                              std::string_view parameters, std::string_view folder) = 0;
};

}  // namespace quenda

#pragma once

#include "platform/system.h"
#include "platform/win32/handles.h"

namespace quenda {

class Win32System : public System {
 public:
  [[nodiscard]] std::string special_folder(int number) const override;
  [[nodiscard]] std::string program_folder() const override;
  [[nodiscard]] std::string executable_name() const override;
  [[nodiscard]] std::string command_line() const override;
  /// Claims the name by which instances know each other; it is held until the program ends.
  [[nodiscard]] bool previous_instance() const override;
  [[nodiscard]] bool protects_program_folders() const override { return true; }
  [[nodiscard]] std::string long_path(std::string_view path) const override;
  [[nodiscard]] std::string short_date_today() const override;
  int open_with_shell(std::string_view verb, std::string_view file, std::string_view parameters,
                      std::string_view folder) override;

 private:
  mutable KernelHandle instance_;
};

}  // namespace quenda

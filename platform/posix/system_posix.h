#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/system.h"

namespace quenda {

class PosixClock final : public Clock {
 public:
  [[nodiscard]] LocalTime now() const override;
  [[nodiscard]] std::uint64_t milliseconds() const override;
};

/// This system's places for the suite's folders: /var/lib for data that all users share, /opt for
/// programs.
class PosixSystem final : public System {
 public:
  [[nodiscard]] std::string special_folder(int number) const override;
  [[nodiscard]] std::string program_folder() const override;
  [[nodiscard]] std::string executable_name() const override;
  /// Always empty: the console program's options are no switches of the windowed tool.
  [[nodiscard]] std::string command_line() const override { return {}; }
  [[nodiscard]] bool previous_instance() const override { return false; }
  [[nodiscard]] bool protects_program_folders() const override { return false; }
  [[nodiscard]] std::string short_date_today() const override;
  /// There is no shell that knows a program for every document; always "no association".
  int open_with_shell(std::string_view verb, std::string_view file, std::string_view parameters,
                      std::string_view folder) override;
};

}  // namespace quenda

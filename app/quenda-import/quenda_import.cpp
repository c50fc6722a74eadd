#include <exception>
#include <iostream>

#include "app/quenda-import/batch_options.h"
#include "app/quenda-import/batch_run.h"
#include "platform/native_services.h"

int main(int argc, char** argv) {
  using namespace quenda;
  try {
    keep_memory();
    const BatchCommand command = read_batch_command(console_arguments(argc, argv));
    if (!command.options) {
      std::ostream& stream = command.status == kExitDone ? std::cout : std::cerr;
      stream << command.text << std::flush;
      return command.status == kExitDone && !stream ? kExitRefused : command.status;
    }
    const auto files = native_files();
    const auto clock = native_clock();
    const auto system = native_system();
    const auto automation = native_automation();
    return run_batch(*command.options, {*files, *clock, *system, *automation},
                     {std::cout, std::cerr, console_is_interactive() ? &std::cin : nullptr,
                      console_shows_progress(), console_shows_results()});
  } catch (const std::exception& error) {
    std::cerr << "quenda-import: " << error.what() << '\n';
    return kExitRefused;
  }
}

#pragma once

#include <iosfwd>

#include "app/quenda-import/batch_options.h"

namespace quenda {

class Automation;
class Clock;
class Files;
class System;

/// What the console tool needs of the machine.
struct BatchMachine {
  Files& files;
  Clock& clock;
  System& system;
  Automation& automation;
};

/// The terminal. Texts on it are UTF-8.
struct BatchConsole {
  std::ostream& out;                 // the result, for scripts
  std::ostream& errors;              // everything else
  std::istream* answers = nullptr;   // where a person answers questions; null when there is nobody
  bool progress = false;             // whether `errors` is a terminal that can redraw a line
  bool results_on_terminal = false;  // whether `out` is one
};

/// Carries out an import by the wizard's own forms, pressing their buttons as a user would.
/// Settings are read and never written. The result is the exit status.
int run_batch(const BatchOptions& options, const BatchMachine& machine,
              const BatchConsole& console);

}  // namespace quenda

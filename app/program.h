#pragma once

#include <functional>

namespace quenda {

struct App;
class fMain;

/// The program from its start to its end: loads the form and runs `loop`, which shows it and
/// handles what the user does. A fault that no procedure has caught ends the program with a word to
/// the user; the host hears "cancel" also then.
void run_program(App& app, fMain& form, const std::function<void()>& loop);

}  // namespace quenda

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/automation.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/system.h"

// The services as this operating system carries them out; posix/ and win32/ each define all of
// them.
namespace quenda {

std::unique_ptr<Files> native_files();
std::unique_ptr<Clock> native_clock();
std::unique_ptr<System> native_system();
std::unique_ptr<Automation> native_automation();

/// Lets memory that was given back be used again, instead of asking the system for new pages: it
/// clears each before it hands it out. For a program that ends when its work is done.
void keep_memory();

/// Whether a person sits at the terminal: reads what goes to stderr and can type on stdin.
bool console_is_interactive();
/// Whether what goes to stderr is read on a terminal, where a progress line can be redrawn.
bool console_shows_progress();
/// Whether what goes to stdout is read on a terminal.
bool console_shows_results();
/// The program's arguments as UTF-8, without the program's own name. Also sets the console up for
/// UTF-8 output where that has to be asked for, and so that what cannot be put out is a failure of
/// the stream and nothing worse.
std::vector<std::string> console_arguments(int argc, char** argv);

}  // namespace quenda

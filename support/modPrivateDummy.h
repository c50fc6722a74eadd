#pragma once

#include <string>
#include <string_view>

#include "platform/dialogs.h"

namespace quenda {

class clsErrorHandling;
class System;

namespace modPrivateDummy {

/// Shows a message box; every box of the program comes through here. An empty title becomes
/// "Quenda - " and the executable's name. With `more` the box has that button, too.
MessageAnswer MsgBoxForward(clsErrorHandling& errors, Dialogs& dialogs, const System& system,
                            std::string_view text, MessageStyle style, std::string_view title,
                            const MoreButton* more = nullptr);

/// The title that a box gets.
std::string message_title(std::string_view title, std::string_view executable_name);

}  // namespace modPrivateDummy
}  // namespace quenda

#pragma once

#include <string>
#include <string_view>

namespace quenda {

class clsErrorHandling;
class System;

/// The English text for a result code of the shell; empty for success (33 and more).
std::string_view shell_error_text(int code);

namespace modImport {

/// Opens a document or an address with its program, "Open" being the usual verb. The result is an
/// error text, empty when it worked.
std::string ShellEx(clsErrorHandling& errors, System& system, std::string_view verb,
                    std::string_view file, std::string_view parameters, std::string_view folder);

}  // namespace modImport
}  // namespace quenda

#include "support/shell.h"

#include <array>

#include "platform/system.h"
#include "support/procedure.h"

namespace quenda {
namespace {

constexpr int kLowestSuccess = 33;

struct ShellError {
  int code;
  std::string_view text;
};

constexpr std::array kShellErrors = {
    ShellError{2, "File not found"},
    ShellError{3, "Path not found"},
    ShellError{5, "Access denied"},
    ShellError{8, "Out of memory"},
    ShellError{11, "Invalid EXE file or error in EXE image"},
    ShellError{26, "A sharing violation occurred"},
    ShellError{27, "Incomplete or invalid file association"},
    ShellError{28, "DDE Time out"},
    ShellError{29, "DDE transaction failed"},
    ShellError{30, "DDE busy"},
    ShellError{31, "No association for file extension"},
    ShellError{32, "DLL not found"},
};

}  // namespace

std::string_view shell_error_text(int code) {
  if (code >= kLowestSuccess) return {};
  for (const ShellError& error : kShellErrors) {
    if (error.code == code) return error.text;
  }
  return "Unknown error";
}

namespace modImport {

std::string ShellEx(clsErrorHandling& errors, System& system, std::string_view verb,
                    std::string_view file, std::string_view parameters, std::string_view folder) {
  std::string error;
  procedure(errors, "modImport.ShellEx", {verb, file, parameters, folder}, [&] {
    error = shell_error_text(system.open_with_shell(verb, file, parameters, folder));
    if (!error.empty()) errors.LogDebug_Trace("Import_ShellEx", {verb, file, parameters, folder});
  }).or_go_on();
  return error;
}

}  // namespace modImport
}  // namespace quenda

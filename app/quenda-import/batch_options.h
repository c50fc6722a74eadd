#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "wizard/header_columns.h"

namespace quenda {

/// What a caller of the console tool wants, in the tool's own texts. What is not given is left to
/// the suite's settings.
struct BatchOptions {
  std::string suite;  // program folder of the suite; empty: the folder of the executable
  std::string file;
  bool outlook = false;
  std::optional<int> delimiter;                                // position in the wizard's list
  std::array<std::vector<std::string>, kHeaderKinds> columns;  // header texts per kind
  std::optional<bool> convert;
  bool auto_columns = false;  // those of a known export
  std::optional<bool> flip_name;
  std::optional<int> address_order;
  std::array<std::optional<int>, 3> bindings;  // per number row: address 1 or 2, 0 for none
  std::array<std::optional<std::string>, 3> suffixes;
  std::optional<int> existing;  // 0 ask, 1 take the new entry, 2 keep the existing one
  std::optional<bool> min_name;
  std::optional<std::string> country;
  std::optional<std::string> area;
  bool backup = false;  // copies the book first; off leaves it to the settings
  bool undo = false;    // takes the last import back instead of importing
  bool dry_run = false;
  std::optional<std::string> report;  // path of the report, "-" for stdout
  bool strict = false;                // a lost number makes the run end with a status of its own
  bool quiet = false;

  [[nodiscard]] bool columns_given() const;
};

/// Exit statuses of the console tool.
enum ExitStatus : int {
  kExitDone = 0,
  kExitRefused = 1,
  kExitWrongUsage = 2,
  kExitNumbersLost = 3,  // with `strict`: imported, but a number was not taken
};

/// Options, or the text to print (UTF-8) and the status to leave with.
struct BatchCommand {
  std::optional<BatchOptions> options;
  int status = kExitDone;
  std::string text;
};

/// Reads the arguments (UTF-8, without the program's name). A text that Windows-1252 cannot express
/// names no file and no column, so it is refused like a missing one.
BatchCommand read_batch_command(const std::vector<std::string>& arguments);

}  // namespace quenda

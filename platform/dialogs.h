#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quenda {

class Form;

/// Sign and buttons of a message box; the numbers are those of Windows.
enum class MessageStyle : int {
  kPlain = 0,
  kCritical = 16,
  kQuestionYesNo = 36,
  kExclamation = 48,
  kInformation = 64,
};

/// Which button closed a message box; the numbers are those of Windows.
enum class MessageAnswer : int { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

/// One line of a file dialog's type list: what the user reads, and patterns separated by ";".
struct FileFilter {
  std::string description;
  std::string pattern;
  friend bool operator==(const FileFilter&, const FileFilter&) = default;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Shows a box over the active window and returns when the user has closed it.
  virtual MessageAnswer message_box(std::string_view text, MessageStyle style,
                                    std::string_view title) = 0;
  /// Lets the user choose an existing file; the empty text when the user cancels.
  virtual std::string open_file(Form& owner, const std::vector<FileFilter>& filters) = 0;
};

}  // namespace quenda

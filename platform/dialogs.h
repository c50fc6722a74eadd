#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quenda {

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

/// A button more in a message box. The box stays while it works.
struct MoreButton {
  std::string caption;
  std::function<void()> on_click;
};

/// One line of a file dialog's type list: what the user reads, and patterns separated by ";".
struct FileFilter {
  std::string description;
  std::string pattern;
  friend bool operator==(const FileFilter&, const FileFilter&) = default;
};

/// What the user chose; both texts are empty when the user cancelled.
struct ChosenFile {
  std::string path;
  /// Instead of the path, when it has characters outside Windows-1252, so that the tool cannot name
  /// the file: the path with those characters replaced.
  std::string unusable;
};

/// Runs what the system calls for in the middle of a dialog, under a name that reports can tell.
using DialogHook = std::function<void(const std::function<void()>& action)>;

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Shows a box over the active window and returns when the user has closed it.
  virtual MessageAnswer message_box(std::string_view text, MessageStyle style,
                                    std::string_view title) = 0;
  /// The same with a button more, where boxes can have one.
  virtual MessageAnswer message_box_with(const MoreButton& /*more*/, std::string_view text,
                                         MessageStyle style, std::string_view title) {
    return message_box(text, style, title);
  }
  /// Lets the user choose an existing file, in a dialog over the active window. Whenever the dialog
  /// shows a folder, its list is set up inside the hook.
  virtual ChosenFile open_file(const std::vector<FileFilter>& filters, const DialogHook& hook) = 0;
  /// Lets the user choose where to save, in a dialog over the active window, which asks before an
  /// existing file is replaced. `name` is offered; a name without an ending gets that of the filter
  /// that was chosen.
  virtual ChosenFile save_file(const std::vector<FileFilter>& filters, std::string_view name) = 0;
  /// Puts a text on the clipboard, in place of what was there. Whether the system took it.
  virtual bool copy_text(std::string_view text) = 0;
};

}  // namespace quenda

#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/controls/events.h"
#include "platform/dialogs.h"
#include "platform/host_link.h"
#include "platform/system.h"

// What stands in for windows in a console program, the same on every system.
namespace quenda {

/// One line on the terminal that shows what is being done and how far it is: redrawn in place, gone
/// when the work is done or something else has to be written.
class ProgressLine {
 public:
  explicit ProgressLine(std::ostream& errors) : errors_(errors) {}
  /// The activity is the tool's text; whole percents.
  void show(std::string_view activity, int percent);
  void clear();

 private:
  std::ostream& errors_;
  std::string shown_;
};

/// Message boxes as lines on the error stream, in UTF-8. Nobody has to close them; a question
/// counts as answered with no.
class ConsoleDialogs final : public Dialogs {
 public:
  ConsoleDialogs(std::ostream& errors, ProgressLine& progress)
      : errors_(errors), progress_(progress) {}
  MessageAnswer message_box(std::string_view text, MessageStyle style,
                            std::string_view title) override;
  /// There is no file dialog; always the empty text.
  ChosenFile open_file(const std::vector<FileFilter>& filters, const DialogHook& hook) override;
  ChosenFile save_file(const std::vector<FileFilter>& filters, std::string_view name) override;
  /// There is no clipboard either.
  bool copy_text(std::string_view text) override;

  /// Says of a text that it need not be shown, because the user knows already.
  std::function<bool(std::string_view text)> known;

 private:
  std::ostream& errors_;
  ProgressLine& progress_;
};

/// Events of a program without a window: yielding only refreshes the progress display, and the
/// program itself answers the forms that would be shown.
class ConsoleEvents final : public Events {
 public:
  explicit ConsoleEvents(const Clock& clock) : clock_(clock) {}
  /// Runs `on_progress` about 20 times a second at most.
  void yield() override;
  void show(Form& /*form*/) override {}
  void show_modal(Form& form, Form& owner) override;

  std::function<void()> on_progress;
  /// Answers a modal form in the user's place: sets its controls and presses its buttons.
  std::function<void(Form& form, Form& owner)> on_modal;

 private:
  const Clock& clock_;
  std::uint64_t last_progress_ = 0;
};

/// For runs that no phone book listens to: remembers what it would have been told of the book.
class ConsoleLink final : public HostLink {
 public:
  void offer(std::string_view /*topic*/, std::string_view /*item*/,
             HostLinkEvents /*events*/) override {}
  /// The closing of the form makes "nodata" a "cancel", so the texts about the book are kept.
  void set_text(std::string_view text) override;
  void shut_down() noexcept override {}

  /// "data" after the book was written, "nodata" when there was nothing to write, else empty.
  [[nodiscard]] const std::string& result() const { return result_; }

 private:
  std::string result_;
};

/// The system as it is, except that the suite lies in a folder of the user's choice and that the
/// program counts as started by the phone book.
class SuiteSystem final : public System {
 public:
  SuiteSystem(System& system, std::string program_folder)
      : system_(system), program_folder_(std::move(program_folder)) {}
  [[nodiscard]] std::string special_folder(int number) const override {
    return system_.special_folder(number);
  }
  [[nodiscard]] std::string program_folder() const override { return program_folder_; }
  [[nodiscard]] std::string executable_name() const override { return system_.executable_name(); }
  [[nodiscard]] std::string command_line() const override { return "/i"; }
  [[nodiscard]] bool previous_instance() const override { return false; }
  [[nodiscard]] bool protects_program_folders() const override {
    return system_.protects_program_folders();
  }
  [[nodiscard]] std::string long_path(std::string_view path) const override {
    return system_.long_path(path);
  }
  [[nodiscard]] std::string short_date_today() const override { return system_.short_date_today(); }
  int open_with_shell(std::string_view verb, std::string_view file, std::string_view parameters,
                      std::string_view folder) override {
    return system_.open_with_shell(verb, file, parameters, folder);
  }

 private:
  System& system_;
  std::string program_folder_;
};

}  // namespace quenda

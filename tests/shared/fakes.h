#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/automation.h"
#include "platform/clock.h"
#include "platform/controls/events.h"
#include "platform/controls/form.h"
#include "platform/dialogs.h"
#include "platform/host_link.h"
#include "platform/machine.h"
#include "platform/system.h"
#include "tests/shared/fake_files.h"

// The machine as tests see it: everything in memory, everything that happens is written down.
namespace quenda {

class FakeClock : public Clock {
 public:
  LocalTime time{2014, 3, 2, 17, 5, 9};
  std::uint64_t ticks = 0;

  [[nodiscard]] LocalTime now() const override { return time; }
  [[nodiscard]] std::uint64_t milliseconds() const override { return ticks; }
};

class FakeDialogs : public Dialogs {
 public:
  struct Box {
    std::string text;
    MessageStyle style = MessageStyle::kPlain;
    std::string title;
    friend bool operator==(const Box&, const Box&) = default;
  };
  std::vector<Box> boxes;                        // shown so far
  std::deque<MessageAnswer> answers;             // of the next boxes; then OK
  std::deque<std::string> paths;                 // of the next file dialogs; then cancelled
  std::vector<std::vector<FileFilter>> filters;  // of the file dialogs shown so far

  MessageAnswer message_box(std::string_view text, MessageStyle style,
                            std::string_view title) override {
    boxes.push_back({std::string(text), style, std::string(title)});
    if (on_box) on_box();
    return taken_from(answers, MessageAnswer::kOk);
  }
  MessageAnswer message_box_with(const MoreButton& button, std::string_view text,
                                 MessageStyle style, std::string_view title) override {
    more = button;
    return message_box(text, style, title);
  }
  MoreButton more;                        // of the last box that had one
  std::function<void()> on_box;           // runs while a box stands
  std::function<void()> on_folder_shown;  // runs inside the hook of the file dialogs

  ChosenFile open_file(const std::vector<FileFilter>& wanted, const DialogHook& hook) override {
    filters.push_back(wanted);
    if (on_folder_shown) hook(on_folder_shown);
    return {.path = taken_from(paths, std::string()), .unusable = {}};
  }
  ChosenFile save_file(const std::vector<FileFilter>& wanted, std::string_view /*name*/) override {
    filters.push_back(wanted);
    return {.path = taken_from(paths, std::string()), .unusable = {}};
  }
  std::string clipboard;
  bool copy_text(std::string_view text) override {
    clipboard = text;
    return true;
  }

 private:
  template <class T>
  static T taken_from(std::deque<T>& prepared, T otherwise) {
    if (prepared.empty()) return otherwise;
    T first = std::move(prepared.front());
    prepared.pop_front();
    return first;
  }
};

class FakeSystem : public System {
 public:
  std::string program = "C:\\Quenda";
  std::string name = "Import";
  std::string arguments = "/i";
  bool previous = false;
  bool protects = true;
  std::string today = "02.03.2014";
  int shell_result = 42;
  std::vector<std::string> opened;  // verb and file with a blank between them

  [[nodiscard]] std::string special_folder(int number) const override {
    return number == kCommonApplicationData ? "C:\\ProgramData" : "C:\\Program Files";
  }
  [[nodiscard]] std::string program_folder() const override { return program; }
  [[nodiscard]] std::string executable_name() const override { return name; }
  [[nodiscard]] std::string command_line() const override { return arguments; }
  [[nodiscard]] bool previous_instance() const override { return previous; }
  [[nodiscard]] bool protects_program_folders() const override { return protects; }
  [[nodiscard]] std::string long_path(std::string_view path) const override {
    const bool is_short = path.starts_with("C:\\PROGRA~1");
    return is_short ? "C:\\Program Files" + std::string(path.substr(11)) : std::string(path);
  }
  [[nodiscard]] std::string short_date_today() const override { return today; }
  int open_with_shell(std::string_view verb, std::string_view file, std::string_view /*parameters*/,
                      std::string_view /*folder*/) override {
    opened.push_back(std::string(verb) + " " + std::string(file));
    return shell_result;
  }
};

/// The user: `on_yield` acts while the program works, `on_modal` while a dialog is open. A dialog
/// that the user leaves alone is unloaded.
class FakeEvents : public Events {
 public:
  std::function<void()> on_yield;
  std::function<void(Form& form)> on_modal;

  void yield() override {
    if (on_yield) on_yield();
  }
  void show(Form& /*form*/) override {}
  void show_modal(Form& form, Form& /*owner*/) override {
    if (on_modal) on_modal(form);
    if (form.loaded()) form.unload();
  }
};

class FakeHostLink : public HostLink {
 public:
  std::string topic;
  std::string item;
  HostLinkEvents events;
  std::vector<std::string> texts;
  bool shut = false;

  void offer(std::string_view new_topic, std::string_view new_item,
             HostLinkEvents new_events) override {
    topic = new_topic;
    item = new_item;
    events = std::move(new_events);
  }
  void set_text(std::string_view text) override { texts.emplace_back(text); }
  void shut_down() noexcept override { shut = true; }
};

/// What an automation object has; trees are built of these. A member in `faults` raises.
struct FakeObject {
  std::string type;
  std::map<std::string, std::string, std::less<>> texts;
  std::map<std::string, long, std::less<>> numbers;
  std::map<std::string, std::shared_ptr<FakeObject>, std::less<>> objects;
  /// By member name: what it returns for the argument 1, 2, 3 ...
  std::map<std::string, std::vector<std::shared_ptr<FakeObject>>, std::less<>> lists;
  std::map<std::string, int, std::less<>> faults;
};

class FakeAutomation : public Automation {
 public:
  /// By program identifier; others raise 429.
  std::map<std::string, std::shared_ptr<FakeObject>, std::less<>> programs;

  std::unique_ptr<AutomationObject> create(std::string_view program_id) override;
};

/// All of them together.
struct FakeMachine {
  FakeFiles files;
  FakeClock clock;
  FakeEvents events;
  FakeDialogs dialogs;
  FakeSystem system;
  FakeHostLink host_link;
  FakeAutomation automation;
  Machine services{files, clock, events, dialogs, system, host_link, automation};
};

}  // namespace quenda

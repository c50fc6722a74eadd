#include "app/quenda-import/console_services.h"

#include "app/quenda-import/printable.h"
#include "platform/controls/form.h"
#include "text/text.h"

namespace quenda {

MessageAnswer ConsoleDialogs::message_box(std::string_view text, MessageStyle style,
                                          std::string_view /*title*/) {
  if (!known || !known(text)) {
    progress_.clear();
    const std::string lines = replace_all(replace_all(text, kCrLf, "\n"), "\r", "\n");
    errors_ << to_utf8(printable(lines)) << '\n' << std::flush;
  }
  return style == MessageStyle::kQuestionYesNo ? MessageAnswer::kNo : MessageAnswer::kOk;
}

ChosenFile ConsoleDialogs::open_file(const std::vector<FileFilter>& /*filters*/,
                                     const DialogHook& /*hook*/) {
  return {};
}

ChosenFile ConsoleDialogs::save_file(const std::vector<FileFilter>& /*filters*/,
                                     std::string_view /*name*/) {
  return {};
}

bool ConsoleDialogs::copy_text(std::string_view /*text*/) { return false; }

void ConsoleEvents::yield() {
  constexpr std::uint64_t kMilliseconds = 50;
  if (!on_progress) return;
  const std::uint64_t now = clock_.milliseconds();
  if (now - last_progress_ < kMilliseconds) return;
  last_progress_ = now;
  on_progress();
}

void ConsoleEvents::show_modal(Form& form, Form& owner) {
  if (on_modal) on_modal(form, owner);
}

void ConsoleLink::set_text(std::string_view text) {
  if (text == "data" || text == "nodata") result_ = text;
}

void ProgressLine::show(std::string_view activity, int percent) {
  std::string line = concat(to_utf8(printable(activity)), " ", std::to_string(percent), " %");
  if (line == shown_) return;
  errors_ << "\r\x1b[K" << line << std::flush;
  shown_ = std::move(line);
}

void ProgressLine::clear() {
  if (shown_.empty()) return;
  errors_ << "\r\x1b[K" << std::flush;
  shown_.clear();
}

}  // namespace quenda

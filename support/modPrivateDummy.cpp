#include "support/modPrivateDummy.h"

#include "platform/system.h"
#include "support/procedure.h"
#include "text/text.h"

namespace quenda::modPrivateDummy {

std::string message_title(std::string_view title, std::string_view executable_name) {
  return title.empty() ? concat("Quenda - ", executable_name) : std::string(title);
}

MessageAnswer MsgBoxForward(clsErrorHandling& errors, Dialogs& dialogs, const System& system,
                            std::string_view text, MessageStyle style, std::string_view title,
                            const MoreButton* more) {
  auto answer = MessageAnswer::kOk;
  procedure(errors, "modPrivateDummy.MsgBoxForward", {text, static_cast<int>(style), title}, [&] {
    const std::string shown_title = message_title(title, system.executable_name());
    answer = more == nullptr ? dialogs.message_box(text, style, shown_title)
                             : dialogs.message_box_with(*more, text, style, shown_title);
  }).or_go_on();
  return answer;
}

}  // namespace quenda::modPrivateDummy

#pragma once

#include "platform/dialogs.h"
#include "platform/win32/windows/message_loop.h"

namespace quenda {

class Win32Dialogs : public Dialogs {
 public:
  explicit Win32Dialogs(MessageLoop& loop) : loop_(loop) {}
  MessageAnswer message_box(std::string_view text, MessageStyle style,
                            std::string_view title) override;
  MessageAnswer message_box_with(const MoreButton& more, std::string_view text, MessageStyle style,
                                 std::string_view title) override;
  ChosenFile open_file(const std::vector<FileFilter>& filters, const DialogHook& hook) override;
  ChosenFile save_file(const std::vector<FileFilter>& filters, std::string_view name) override;
  bool copy_text(std::string_view text) override;

 private:
  MessageAnswer show_box(std::string_view text, UINT style, std::string_view title);

  MessageLoop& loop_;
};

}  // namespace quenda

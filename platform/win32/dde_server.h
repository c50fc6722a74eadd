#pragma once

#include <map>
#include <string>

#include "platform/host_link.h"
#include "platform/win32/dde_conversation.h"
#include "platform/win32/windows/message_loop.h"

namespace quenda {

/// The host link over dynamic data exchange. Hosts may connect in any number, watch the item (hot
/// or warm) or ask for it, as Windows-1252 or as Unicode text. `closed` is raised when the last
/// host has left: while one listens, the link is open. `failed` is raised instead when the last one
/// has died.
///
/// It is spoken by the messages themselves, not through the system's library, and the main window
/// is the one that hosts find: the library's own windows would take a tenth of the time until the
/// main window is there.
class DdeServer : public HostLink {
 public:
  /// `service` is the application name that hosts ask for.
  DdeServer(MessageLoop& loop, std::string_view service) : loop_(loop), service_(service) {}
  DdeServer(const DdeServer&) = delete;
  DdeServer& operator=(const DdeServer&) = delete;
  ~DdeServer() override { shut_down(); }

  void offer(std::string_view topic, std::string_view item, HostLinkEvents events) override;
  void set_text(std::string_view text) override;
  void shut_down() noexcept override;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam,
                                    LPARAM lparam) noexcept;
  void handle(HWND window, UINT message, HWND sender, LPARAM carried);
  /// A window of the link, one for each conversation.
  WindowHandle make_window();
  /// A host looks for somebody to talk to. Names of 0 stand for any.
  void called(HWND host, ATOM service, ATOM topic);
  /// Sends the text to every host that has not heard it yet.
  void tell();
  /// The conversation of that window is over.
  void ended(HWND window);
  /// Ends conversations whose host is gone without having said so.
  void drop_dead();

  MessageLoop& loop_;
  std::string service_;
  std::string topic_;
  std::string item_;
  HostLinkEvents events_;
  std::string text_;
  std::map<HWND, DdeConversation> conversations_;  // by the tool's end
};

}  // namespace quenda

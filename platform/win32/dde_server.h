#pragma once

#include <map>
#include <string>

#include "platform/host_link.h"
#include "platform/win32/windows/message_loop.h"
#include "platform/win32/windows_headers.h"
// windows.h has to come first.
#include <ddeml.h>

namespace quenda {

/// The host link over the system's dynamic data exchange. Hosts may connect in any number, watch
/// the item (hot or warm) or ask for it, as Windows-1252 or as Unicode text. `closed` is raised
/// when the last host has left: while one listens, the link is open. `failed` is raised instead
/// when the last one has died.
class DdeServer : public HostLink {
 public:
  /// `service` is the application name that hosts ask for.
  DdeServer(MessageLoop& loop, std::string_view service) : loop_(loop), service_name_(service) {}
  DdeServer(const DdeServer&) = delete;
  DdeServer& operator=(const DdeServer&) = delete;
  ~DdeServer() override { shut_down(); }

  void offer(std::string_view topic, std::string_view item, HostLinkEvents events) override;
  void set_text(std::string_view text) override;
  void shut_down() noexcept override;

 private:
  /// A host that is connected.
  struct Host {
    HWND window = nullptr;
    /// What it has been told last in each form that it watches, so that a text reaches it once.
    std::map<UINT, std::string> told = {};
    [[nodiscard]] bool alive() const { return window == nullptr || IsWindow(window) != 0; }
  };

  static HDDEDATA CALLBACK callback(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ item,
                                    HDDEDATA data, ULONG_PTR data1, ULONG_PTR data2) noexcept;
  HDDEDATA handle(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ item);
  static void CALLBACK watch(HWND window, UINT message, UINT_PTR timer, DWORD time) noexcept;

  [[nodiscard]] HSZ name(std::string_view text) const;
  [[nodiscard]] bool offers(HSZ topic, HSZ item) const;
  [[nodiscard]] HDDEDATA wildcard_answer(HSZ topic, HSZ service) const;
  [[nodiscard]] HDDEDATA text_data(UINT format, HSZ item) const;
  void connected(HCONV conversation);
  void disconnected(HCONV conversation, bool died);
  /// Whether a host that is connected is gone. The system ends the conversation in its name then,
  /// so that it looks like a goodbye.
  [[nodiscard]] bool died(HCONV conversation) const;
  /// Ends conversations whose host is gone without having said so; whether there were any.
  bool drop_dead();
  void post();

  MessageLoop& loop_;
  std::string service_name_;
  DWORD instance_ = 0;
  HSZ service_ = nullptr;
  HSZ topic_ = nullptr;
  HSZ item_ = nullptr;
  HostLinkEvents events_;
  std::string text_;
  std::map<HCONV, Host> conversations_;
  bool untold_ = false;  // a host has begun to watch and waits for the present text
  UINT_PTR timer_ = 0;
};

}  // namespace quenda

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
/// when the last conversation has ended: while one host listens, the link is open.
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
  /// What one host that watches has been told last in each form, so that a text reaches it once.
  using Told = std::map<UINT, std::string>;

  static HDDEDATA CALLBACK callback(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ item,
                                    HDDEDATA data, ULONG_PTR data1, ULONG_PTR data2) noexcept;
  HDDEDATA handle(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ item);
  static void CALLBACK watch(HWND window, UINT message, UINT_PTR timer, DWORD time) noexcept;

  [[nodiscard]] HSZ name(std::string_view text) const;
  [[nodiscard]] bool offers(HSZ topic, HSZ item) const;
  [[nodiscard]] HDDEDATA wildcard_answer(HSZ topic, HSZ service) const;
  [[nodiscard]] HDDEDATA text_data(UINT format, HSZ item) const;
  void connected(HCONV conversation);
  void disconnected(HCONV conversation);
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
  std::map<HCONV, Told> conversations_;
  bool untold_ = false;  // a host has begun to watch and waits for the present text
  UINT_PTR timer_ = 0;
};

}  // namespace quenda

#include "platform/win32/dde_server.h"

#include <dde.h>

#include <array>
#include <utility>
#include <vector>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"

namespace quenda {
namespace {

constexpr UINT kWatchInterval = 1000;  // milliseconds between two looks at the hosts
constexpr UINT kPostInterval = 10;     // until a host that has begun to watch gets the present text
constexpr ULONGLONG kLastWords = 100;  // milliseconds for the last text to reach the hosts

// The system hands its callback no context. There is one server in the program.
DdeServer* the_server = nullptr;  // NOLINT(*-avoid-non-const-global-variables)

HDDEDATA yes() { return from_lparam<HDDEDATA__>(TRUE); }

}  // namespace

void DdeServer::offer(std::string_view topic, std::string_view item, HostLinkEvents events) {
  shut_down();
  events_ = std::move(events);
  the_server = this;
  constexpr DWORD kSilent =
      CBF_FAIL_EXECUTES | CBF_FAIL_POKES | CBF_SKIP_REGISTRATIONS | CBF_SKIP_UNREGISTRATIONS;
  if (DdeInitializeW(&instance_, &DdeServer::callback, APPCLASS_STANDARD | kSilent, 0) !=
      DMLERR_NO_ERROR) {
    instance_ = 0;
    if (events_.failed) events_.failed();
    return;
  }
  service_ = name(service_name_);
  topic_ = name(topic);
  item_ = name(item);
  DdeNameService(instance_, service_, nullptr, DNS_REGISTER);
}

void DdeServer::set_text(std::string_view text) {
  text_ = text;
  if (instance_ != 0) post();
}

void DdeServer::post() {
  drop_dead();
  if (!conversations_.empty()) DdePostAdvise(instance_, topic_, item_);
}

void DdeServer::shut_down() noexcept {
  if (instance_ == 0) return;
  events_ = {};
  if (timer_ != 0) KillTimer(nullptr, std::exchange(timer_, 0));
  drop_dead();
  // Only the exchange's own messages: no control may act on input any more.
  const ULONGLONG end = GetTickCount64() + kLastWords;
  while (!conversations_.empty() && GetTickCount64() < end) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, WM_DDE_FIRST, WM_DDE_LAST, PM_REMOVE) != 0) {
      DispatchMessageW(&message);
    }
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_POSTMESSAGE);
  }
  for (const auto& [conversation, host] : std::exchange(conversations_, {})) {
    DdeDisconnect(conversation);
  }
  DdeNameService(instance_, service_, nullptr, DNS_UNREGISTER);
  for (HSZ* handle : {&service_, &topic_, &item_}) {
    DdeFreeStringHandle(instance_, std::exchange(*handle, nullptr));
  }
  DdeUninitialize(std::exchange(instance_, 0));
  the_server = nullptr;
}

HSZ DdeServer::name(std::string_view text) const {
  return DdeCreateStringHandleW(instance_, wide(text).c_str(), CP_WINUNICODE);
}

bool DdeServer::offers(HSZ topic, HSZ item) const {
  return DdeCmpStringHandles(topic, topic_) == 0 && DdeCmpStringHandles(item, item_) == 0;
}

HDDEDATA CALLBACK DdeServer::callback(UINT type, UINT format, HCONV conversation, HSZ topic,
                                      HSZ item, HDDEDATA /*data*/, ULONG_PTR /*data1*/,
                                      ULONG_PTR /*data2*/) noexcept {
  DdeServer* const server = the_server;
  if (server == nullptr) return nullptr;
  return server->loop_.at_edge(
      [&] { return server->handle(type, format, conversation, topic, item); }, HDDEDATA{});
}

HDDEDATA DdeServer::handle(UINT type, UINT format, HCONV conversation, HSZ topic, HSZ item) {
  switch (type) {
    case XTYP_CONNECT:
      return DdeCmpStringHandles(topic, topic_) == 0 && DdeCmpStringHandles(item, service_) == 0
                 ? yes()
                 : nullptr;
    case XTYP_WILDCONNECT:
      return wildcard_answer(topic, item);
    case XTYP_CONNECT_CONFIRM:
      connected(conversation);
      return nullptr;
    case XTYP_DISCONNECT:
      disconnected(conversation, died(conversation));
      return nullptr;
    case XTYP_ERROR:
      if (events_.failed) events_.failed();
      return nullptr;
    case XTYP_ADVSTART:
      if (!offers(topic, item) || (format != CF_TEXT && format != CF_UNICODETEXT)) return nullptr;
      // The loop stands only after this call; the present text follows right behind.
      untold_ = true;
      conversations_[conversation].told.erase(format);
      timer_ = SetTimer(nullptr, timer_, kPostInterval, &DdeServer::watch);
      return yes();
    case XTYP_REQUEST:
      return offers(topic, item) ? text_data(format, item) : nullptr;
    case XTYP_ADVREQ: {
      if (!offers(topic, item)) return nullptr;
      auto& told = conversations_[conversation].told;
      const auto last = told.find(format);
      if (last != told.end() && last->second == text_) return nullptr;
      const HDDEDATA data = text_data(format, item);
      if (data != nullptr) told[format] = text_;
      return data;
    }
    default:
      return nullptr;
  }
}

HDDEDATA DdeServer::wildcard_answer(HSZ topic, HSZ service) const {
  const bool topic_fits = topic == nullptr || DdeCmpStringHandles(topic, topic_) == 0;
  const bool service_fits = service == nullptr || DdeCmpStringHandles(service, service_) == 0;
  if (!topic_fits || !service_fits) return nullptr;
  std::array<HSZPAIR, 2> pairs{{{service_, topic_}, {}}};  // ended by an empty pair
  return DdeCreateDataHandle(instance_, from_lparam<BYTE>(as_lparam(pairs.data())), sizeof pairs, 0,
                             nullptr, 0, 0);
}

HDDEDATA DdeServer::text_data(UINT format, HSZ item) const {
  const auto give = [&](const void* bytes, std::size_t size) {
    return DdeCreateDataHandle(instance_, from_lparam<BYTE>(as_lparam(bytes)),
                               static_cast<DWORD>(size), 0, item, format, 0);
  };
  if (format == CF_TEXT) return give(text_.c_str(), text_.size() + 1);
  if (format != CF_UNICODETEXT) return nullptr;
  const std::wstring text = wide(text_);
  return give(text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

void DdeServer::connected(HCONV conversation) {
  CONVINFO info{};
  info.cb = sizeof info;
  DdeQueryConvInfo(conversation, QID_SYNC, &info);
  conversations_[conversation] = {info.hwndPartner};
  if (timer_ == 0) timer_ = SetTimer(nullptr, 0, kWatchInterval, &DdeServer::watch);
  if (events_.opened) events_.opened();
}

bool DdeServer::died(HCONV conversation) const {
  const auto host = conversations_.find(conversation);
  return host != conversations_.end() && !host->second.alive();
}

void DdeServer::disconnected(HCONV conversation, bool died) {
  if (conversations_.erase(conversation) == 0 || !conversations_.empty()) return;
  const auto& tell = died ? events_.failed : events_.closed;
  if (tell) tell();
}

bool DdeServer::drop_dead() {
  std::vector<HCONV> dead;
  for (const auto& [conversation, host] : conversations_) {
    if (!host.alive()) dead.push_back(conversation);
  }
  for (const HCONV conversation : dead) {
    DdeDisconnect(conversation);
    disconnected(conversation, true);
  }
  return !dead.empty();
}

void CALLBACK DdeServer::watch(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/,
                               DWORD /*time*/) noexcept {
  DdeServer* const server = the_server;
  if (server == nullptr) return;
  server->loop_.at_edge([&] {
    server->timer_ = SetTimer(nullptr, server->timer_, kWatchInterval, &DdeServer::watch);
    // A dead host can have kept the last text from those behind it. Without a reason nothing is
    // posted: hosts that only want to know of news would be told of some.
    const bool kept_back = server->drop_dead();
    if (std::exchange(server->untold_, false) || kept_back) server->post();
  });
}

}  // namespace quenda

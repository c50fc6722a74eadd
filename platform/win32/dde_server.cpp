#include "platform/win32/dde_server.h"

#include <dde.h>

#include <utility>
#include <vector>

#include "platform/win32/text_win32.h"

namespace quenda {
namespace {

constexpr const wchar_t* kClass = L"QuendaLink";
constexpr UINT_PTR kTimer = 1;
constexpr UINT kWatchInterval = 1000;  // milliseconds between two looks at the hosts
constexpr UINT kTextDelay = 10;        // until a host that has begun to watch gets the present text
constexpr UINT kHandshake = 1000;      // milliseconds for a host to take the answer to its call
constexpr ULONGLONG kLastWords = 100;  // milliseconds for the last text to reach the hosts

/// Names travel between programs as numbers, without regard to case.
bool is_name(ATOM asked, const std::string& name) {
  return asked == 0 || asked == GlobalFindAtomW(wide(name).c_str());
}

}  // namespace

void DdeServer::offer(std::string_view topic, std::string_view item, HostLinkEvents events) {
  shut_down();
  topic_ = topic;
  item_ = item;
  events_ = std::move(events);
  loop_.on_host_call = [this](HWND host, LPARAM names) {
    called(host, LOWORD(names), HIWORD(names));
  };
}

/// Nobody sees it, and only who knows it can send it anything.
WindowHandle DdeServer::make_window() {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof window_class;
  window_class.lpfnWndProc = &DdeServer::procedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.lpszClassName = kClass;
  RegisterClassExW(&window_class);
  WindowHandle window(CreateWindowExW(0, kClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                      window_class.hInstance, nullptr));
  if (window) SetWindowLongPtrW(window.get(), GWLP_USERDATA, as_lparam(this));
  return window;
}

void DdeServer::set_text(std::string_view text) {
  text_ = text;
  tell();
}

void DdeServer::tell() {
  drop_dead();
  for (auto& [window, conversation] : conversations_) conversation.tell(text_);
}

void DdeServer::shut_down() noexcept {
  loop_.on_host_call = nullptr;
  events_ = {};
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
  for (const auto& [window, conversation] : conversations_) conversation.say_goodbye();
  conversations_.clear();
}

LRESULT CALLBACK DdeServer::procedure(HWND window, UINT message, WPARAM wparam,
                                      LPARAM lparam) noexcept {
  auto* const self = from_lparam<DdeServer>(GetWindowLongPtrW(window, GWLP_USERDATA));
  const bool exchange = message >= WM_DDE_FIRST && message <= WM_DDE_LAST;
  if (self == nullptr || (!exchange && message != WM_TIMER)) {
    return DefWindowProcW(window, message, wparam, lparam);
  }
  self->loop_.at_edge(
      [&] { self->handle(window, message, reinterpret_cast<HWND>(wparam), lparam); });
  return 0;
}

void DdeServer::handle(HWND window, UINT message, HWND sender, LPARAM carried) {
  const auto conversation = conversations_.find(window);
  if (conversation == conversations_.end()) return;
  if (message == WM_TIMER) {
    SetTimer(window, kTimer, kWatchInterval, nullptr);
    tell();
  } else if (sender != conversation->second.host()) {
    return;
  } else if (message == WM_DDE_TERMINATE) {
    ended(window);
  } else {
    conversation->second.answer(message, carried, text_);
    // Not right behind the answer: a host that begins several watches in a row takes a text that
    // comes in between for the answer to the next.
    if (message == WM_DDE_ADVISE) SetTimer(window, kTimer, kTextDelay, nullptr);
  }
}

void DdeServer::called(HWND host, ATOM service, ATOM topic) {
  if (!is_name(service, service_) || !is_name(topic, topic_)) return;
  WindowHandle made = make_window();
  const HWND window = made.get();
  if (window == nullptr) {
    if (events_.failed) events_.failed();
    return;
  }
  conversations_.try_emplace(window, std::move(made), host, item_);
  // The names are the host's from then on.
  const LPARAM names =
      MAKELPARAM(GlobalAddAtomW(wide(service_).c_str()), GlobalAddAtomW(wide(topic_).c_str()));
  DWORD_PTR taken = 0;
  SendMessageTimeoutW(host, WM_DDE_ACK, reinterpret_cast<WPARAM>(window), names, SMTO_ABORTIFHUNG,
                      kHandshake, &taken);
  SetTimer(window, kTimer, kWatchInterval, nullptr);
  if (events_.opened) events_.opened();
}

/// The system says goodbye in the name of a host that has died.
void DdeServer::ended(HWND window) {
  const auto conversation = conversations_.find(window);
  if (conversation == conversations_.end()) return;
  const bool left = conversation->second.alive();
  if (left) conversation->second.say_goodbye();
  conversations_.erase(conversation);
  if (!conversations_.empty()) return;
  const auto& tell = left ? events_.closed : events_.failed;
  if (tell) tell();
}

void DdeServer::drop_dead() {
  std::vector<HWND> dead;
  for (const auto& [window, conversation] : conversations_) {
    if (!conversation.alive()) dead.push_back(window);
  }
  for (const HWND window : dead) ended(window);
}

}  // namespace quenda

#include "platform/win32/windows/message_loop.h"

#include <algorithm>

#include "text/fault.h"

namespace quenda {

namespace {
constexpr ULONGLONG kPumpInterval = 20;  // milliseconds
}

void MessageLoop::remove(LoopClient& client) { std::erase(clients_, &client); }

void MessageLoop::wake() noexcept { PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0); }

void MessageLoop::park() noexcept {
  wake();
  try {
    throw;
  } catch (const EndProgram&) {
    // The end of the program outranks a fault that waits already.
    if (!ending_) parked_ = std::current_exception();
    ending_ = true;
  } catch (...) {
    if (!parked_) parked_ = std::current_exception();
  }
}

void MessageLoop::rethrow() {
  if (!parked_) return;
  ending_ = false;
  std::rethrow_exception(std::exchange(parked_, nullptr));
}

void MessageLoop::show_changes() {
  for (LoopClient* client : clients_) client->show_changes();
}

void MessageLoop::settle(bool idle) {
  show_changes();
  // A copy, since a form that gets the focus can open another, which joins the clients.
  const auto clients = clients_;
  for (LoopClient* client : clients) client->settle(idle);
}

void MessageLoop::dispatch(MSG& message) {
  if (presses_.holds_back(message)) return;
  // A copy, since a key can open a form, which joins the clients.
  const auto clients = clients_;
  const bool taken = std::any_of(clients.rbegin(), clients.rend(),
                                 [&](LoopClient* client) { return client->translate(message); });
  if (!taken) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  rethrow();
}

void MessageLoop::run_while(const std::function<bool()>& condition) {
  while (condition()) {
    settle(true);
    rethrow();
    MSG message{};
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) throw EndProgram{};
    dispatch(message);
  }
}

void MessageLoop::pump() {
  settle(false);
  rethrow();
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) throw EndProgram{};
    dispatch(message);
  }
  rethrow();
  show_changes();
  last_pump_ = GetTickCount64();
}

void MessageLoop::yield() {
  if (GetTickCount64() - last_pump_ >= kPumpInterval) pump();
}

}  // namespace quenda

#pragma once

#include <exception>
#include <functional>
#include <utility>
#include <vector>

#include "platform/win32/windows/press_guard.h"
#include "platform/win32/windows_headers.h"

namespace quenda {

/// A window as far as the loop has to know it.
class LoopClient {
 public:
  virtual ~LoopClient() = default;
  /// Takes messages that mean moving between controls; false leaves the message to be dispatched.
  virtual bool translate(MSG& message) = 0;
  /// Brings what is on the screen up to what the controls say.
  virtual void show_changes() = 0;
  /// Runs when all waiting input has been handled; `idle` is false inside long work.
  virtual void settle(bool idle) = 0;
};

/// The one message loop of the program. Exceptions must not pass through the system's frames, so
/// whatever the system calls parks them here, and the loop that had dispatched the message throws
/// them on. While one is parked no further handler runs.
class MessageLoop {
 public:
  void add(LoopClient& client) { clients_.push_back(&client); }
  void remove(LoopClient& client);

  /// Sees every click and key before the windows do.
  [[nodiscard]] PressGuard& presses() { return presses_; }

  /// Another program looks for somebody to talk to: its window, and the names that it asks for. The
  /// main window hears of it, and whoever offers a link takes the call here.
  std::function<void(HWND host, LPARAM names)> on_host_call;

  /// Runs a handler on behalf of the system, which gets `otherwise` when the handler throws.
  template <class Body, class Result>
  Result at_edge(Body&& body, Result otherwise) noexcept {
    if (parked_) return otherwise;
    try {
      const Result result = std::forward<Body>(body)();
      show_changes();
      return result;
    } catch (...) {
      park();
      return otherwise;
    }
  }
  template <class Body>
  void at_edge(Body&& body) noexcept {
    at_edge(
        [&] {
          std::forward<Body>(body)();
          return 0;
        },
        0);
  }

  /// Has the loop look at its condition, and at what is parked, although no message has come: those
  /// that other programs send are handled while it waits, and do not end the waiting.
  static void wake() noexcept;
  /// Throws on what has been parked. To be called after everything that dispatched messages.
  void rethrow();
  void show_changes();
  /// Waits for messages and handles them as long as the condition holds.
  void run_while(const std::function<bool()>& condition);
  /// Handles the messages that wait.
  void pump();
  /// As `pump`, but costs next to nothing within 20 ms of the last time.
  void yield();

 private:
  void park() noexcept;
  void dispatch(MSG& message);
  void settle(bool idle);

  PressGuard presses_;
  std::vector<LoopClient*> clients_;
  std::exception_ptr parked_;
  bool ending_ = false;
  ULONGLONG last_pump_ = 0;
};

}  // namespace quenda

#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <type_traits>
#include <utility>

namespace quenda {

/// A thread that makes the calls to other programs, one after the other. Such a call can take as
/// long as the other program likes, and cannot be taken back: on a thread of its own it keeps
/// nobody from stopping the tool.
class CallThread {
 public:
  /// `pump` runs on the caller's thread while it waits for a result.
  explicit CallThread(std::function<void()> pump);
  CallThread(const CallThread&) = delete;
  CallThread& operator=(const CallThread&) = delete;
  /// Lets the thread finish what has been posted, but waits for a moment only: one that hangs in a
  /// call is left behind, to go with the process.
  ~CallThread();

  /// Runs work on the thread and waits for its result or fault. The wait ends early when `pump`
  /// raises; the work must not refer to anything of the caller's.
  template <class Work>
  std::invoke_result_t<Work> run(Work work) {
    using Task = std::packaged_task<std::invoke_result_t<Work>()>;
    const auto task = std::make_shared<Task>(std::move(work));
    auto result = task->get_future();
    post([task] { (*task)(); });
    while (result.wait_for(kLook) == std::future_status::timeout) pump_();
    return result.get();
  }

  /// Has work done on the thread, without waiting for it.
  void post(std::function<void()> work);
  /// Whether the thread is to end. To be asked, on the thread, by work that repeats calls.
  [[nodiscard]] std::function<bool()> ending() const;

 private:
  struct Queue;
  static constexpr std::chrono::milliseconds kLook{20};

  std::function<void()> pump_;
  std::shared_ptr<Queue> queue_;
  std::future<void> ended_;
  std::thread thread_;
};

}  // namespace quenda

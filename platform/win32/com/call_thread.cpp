#include "platform/win32/com/call_thread.h"

#include <condition_variable>
#include <deque>
#include <mutex>

#include "platform/win32/com/com_support.h"

namespace quenda {
namespace {

constexpr std::chrono::milliseconds kFarewell{300};

}  // namespace

/// Shared by both threads, so that one which is left behind still has it.
struct CallThread::Queue {
  std::mutex mutex;
  std::condition_variable news;
  std::deque<std::function<void()>> waiting;
  bool ending = false;

  /// The next work; none when the thread is to end.
  std::function<void()> next() {
    std::unique_lock lock(mutex);
    news.wait(lock, [this] { return ending || !waiting.empty(); });
    if (waiting.empty()) return nullptr;
    auto work = std::move(waiting.front());
    waiting.pop_front();
    return work;
  }
  bool is_ending() {
    const std::lock_guard lock(mutex);
    return ending;
  }
};

CallThread::CallThread(std::function<void()> pump)
    : pump_(std::move(pump)), queue_(std::make_shared<Queue>()) {
  std::promise<void> ended;
  ended_ = ended.get_future();
  thread_ = std::thread([queue = queue_, ended = std::move(ended)]() mutable {
    {
      const ApartmentScope apartment(Apartment::kOfMany);
      while (auto work = queue->next()) work();
    }
    ended.set_value();
  });
}

CallThread::~CallThread() {
  {
    const std::lock_guard lock(queue_->mutex);
    queue_->ending = true;
  }
  queue_->news.notify_all();
  if (ended_.wait_for(kFarewell) == std::future_status::ready) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

void CallThread::post(std::function<void()> work) {
  {
    const std::lock_guard lock(queue_->mutex);
    queue_->waiting.push_back(std::move(work));
  }
  queue_->news.notify_all();
}

std::function<bool()> CallThread::ending() const {
  return [queue = queue_] { return queue->is_ending(); };
}

}  // namespace quenda

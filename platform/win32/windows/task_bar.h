#pragma once

#include <memory>
#include <optional>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// The progress of long work on a window's button in the task bar. The system's service for it is
/// asked only when work takes its time: loading it takes longer than most work does.
class TaskBarProgress {
 public:
  TaskBarProgress();
  TaskBarProgress(const TaskBarProgress&) = delete;
  TaskBarProgress& operator=(const TaskBarProgress&) = delete;
  ~TaskBarProgress();
  /// Whole percents, or none while no work is under way.
  void show(HWND window, std::optional<int> percent);

 private:
  struct Service;
  ULONGLONG begun_ = 0;  // 0 while no work is under way
  std::unique_ptr<Service> service_;
};

}  // namespace quenda

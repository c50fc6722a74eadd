#include "platform/win32/windows/task_bar.h"

#include "platform/win32/com/com_support.h"
// The component system's declarations come first.
#include <shobjidl.h>

namespace quenda {

struct TaskBarProgress::Service {
  ApartmentScope apartment;
  ComPtr<ITaskbarList3> list;
};

TaskBarProgress::TaskBarProgress() = default;
TaskBarProgress::~TaskBarProgress() = default;

void TaskBarProgress::show(HWND window, std::optional<int> percent) {
  constexpr ULONGLONG kWorthLoading = 1000;  // milliseconds
  const ULONGLONG now = GetTickCount64();
  if (!percent) {
    begun_ = 0;
    if (service_ && service_->list) service_->list->SetProgressState(window, TBPF_NOPROGRESS);
    return;
  }
  if (begun_ == 0) begun_ = now;
  if (now - begun_ < kWorthLoading) return;
  if (!service_) {
    service_ = std::make_unique<Service>();
    CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                     service_->list.out_void());
    if (service_->list && FAILED(service_->list->HrInit())) service_->list = {};
  }
  if (service_->list) {
    service_->list->SetProgressValue(window, static_cast<ULONGLONG>(*percent), 100);
  }
}

}  // namespace quenda

#include "platform/win32/windows/reader_names.h"

#include <utility>

#include "platform/win32/windows/access_keys.h"

namespace quenda {

SpokenNames& ReaderNames::service() {
  if (!names_) names_ = std::make_unique<SpokenNames>();
  return *names_;
}

std::string ReaderNames::name_to_answer(const NativeControl& native) {
  if (native.control().kind() == ControlKind::kStatusBar) {
    service().tell_changes_of(native.window());
  }
  std::string name = native.control().spoken_name();
  if (name.empty()) name = label_of_list(form_, native.control());
  if (name.empty()) return name;
  return service().set(native.window(), name) ? std::string() : name;
}

void ReaderNames::tell(const std::vector<std::unique_ptr<NativeControl>>& controls) {
  if (!names_ || !std::exchange(changed_, false)) return;
  for (const auto& control : controls) {
    const std::string& name = control->control().spoken_name();
    if (!name.empty() && control->window() != nullptr) names_->set(control->window(), name);
  }
}

}  // namespace quenda

#include "platform/win32/windows/reader_names.h"

#include <optional>
#include <utility>

#include "platform/controls/simple_controls.h"
#include "platform/win32/windows/access_keys.h"

namespace quenda {

SpokenNames& ReaderNames::service() {
  if (!names_) names_ = std::make_unique<SpokenNames>();
  return *names_;
}

/// A list says where in it the user is.
void ReaderNames::describe(const NativeControl& native) {
  const std::optional<ListPlace> place = list_place(native.control());
  if (!place) return;
  service().describe(native.window(), row_in_words(form_.row_pattern(), place->row, place->rows));
}

Spoken ReaderNames::to_answer(const NativeControl& native) {
  const Control& control = native.control();
  const auto* const label = dynamic_cast<const Label*>(&control);
  if (control.kind() == ControlKind::kStatusBar || (label != nullptr && label->announced())) {
    service().tell_changes_of(native.window());
  }
  std::string name = control.spoken_name();
  if (name.empty()) name = label_of_list(form_, control);
  if (name.empty()) return {};
  if (service().set(native.window(), name)) {
    describe(native);
    return {};
  }
  return {.name = std::move(name),
          .role = 0,
          .value = {},
          .row_pattern = form_.row_pattern(),
          .place = list_place(control).value_or(ListPlace{})};
}

void ReaderNames::tell(const std::vector<std::unique_ptr<NativeControl>>& controls) {
  if (!names_ || !std::exchange(changed_, false)) return;
  for (const auto& control : controls) {
    if (control->window() == nullptr) continue;
    const std::string& name = control->control().spoken_name();
    if (!name.empty()) names_->set(control->window(), name);
    describe(*control);
  }
}

}  // namespace quenda

#include "platform/win32/windows/keyed_captions.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/win32/windows/access_keys.h"

namespace quenda {

std::string KeyedCaptions::of(const Control& control) const {
  const auto found = keyed_.find(&control);
  return found == keyed_.end() ? control.caption() : found->second;
}

void KeyedCaptions::renew() {
  if (!std::exchange(changed_, false)) return;
  const std::vector<Control*> found = keyed_controls(form_);
  std::vector<std::string> captions;
  captions.reserve(found.size());
  for (const Control* control : found) captions.push_back(control->caption());
  const auto own_buttons = std::count_if(found.begin(), found.end(), [](const Control* control) {
    return control->parent() == nullptr;
  });
  captions = with_access_keys(captions, static_cast<std::size_t>(own_buttons));
  for (std::size_t i = 0; i < found.size(); ++i) {
    std::string& keyed = keyed_[found[i]];
    if (keyed == captions[i]) continue;
    keyed = std::move(captions[i]);
    if (ControlPeer* const peer = found[i]->peer()) peer->refresh(Aspect::kCaption);
  }
}

}  // namespace quenda

#include "platform/controls/form.h"

#include <algorithm>

namespace quenda {

Form::~Form() = default;

void Form::set_caption(std::string_view caption) {
  caption_ = caption;
  refresh(Aspect::kCaption);
}

void Form::set_place(const Place& place) {
  if (place_ == place) return;
  place_ = place;
  refresh(Aspect::kPlace);
}

void Form::take_user_position(int left, int top) {
  place_.left = left;
  place_.top = top;
}

void Form::set_pointer(Pointer pointer) {
  if (pointer_ == pointer) return;
  pointer_ = pointer;
  refresh(Aspect::kPointer);
}

bool Form::unload(CloseReason reason) {
  if (!loaded_) return true;
  bool cancel = false;
  if (on_query_unload) on_query_unload(cancel, reason);
  if (cancel) return false;
  loaded_ = false;
  // The window first: what is to be done at the end is nothing to wait for.
  refresh(Aspect::kVisible);
  if (on_unload) on_unload();
  return true;
}

Control* Form::find(std::string_view name, int index) const {
  const auto found = std::find_if(controls().begin(), controls().end(), [&](const Control* c) {
    return c->name() == name && c->index() == index;
  });
  return found == controls().end() ? nullptr : *found;
}

}  // namespace quenda

#include "platform/controls/control.h"

#include <algorithm>

namespace quenda {
namespace {

BackColor designed_color(ControlKind kind) {
  switch (kind) {
    case ControlKind::kTextBox:
    case ControlKind::kListBox:
    case ControlKind::kComboList:
    case ControlKind::kListView:
      return BackColor::kWindow;
    default:
      return BackColor::kButtonFace;
  }
}

}  // namespace

void ControlHost::lock_input(bool locked) {
  if (input_locked_ == locked) return;
  input_locked_ = locked;
  for (Control* control : controls_) control->refresh(Aspect::kEnabled);
}

Control::Control(ControlHost& host, ControlKind kind, std::string_view name, int index)
    : host_(host), kind_(kind), name_(name), index_(index), back_color_(designed_color(kind)) {
  host_.controls_.push_back(this);
}

void ControlHost::move_to_end(Control& control) {
  std::erase(controls_, &control);
  controls_.push_back(&control);
}

Control::~Control() { std::erase(host_.controls_, this); }

void Control::set_caption(std::string_view caption) {
  caption_ = caption;
  refresh(Aspect::kCaption);
}

void Control::set_spoken_name(std::string_view name) {
  spoken_name_ = name;
  refresh(Aspect::kCaption);
}

void Control::set_enabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  refresh(Aspect::kEnabled);
}

void Control::set_visible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  refresh(Aspect::kVisible);
}

void Control::set_back_color(BackColor color) {
  if (back_color_ == color) return;
  back_color_ = color;
  refresh(Aspect::kColour);
}

void Control::set_place(const Place& place) {
  if (place_ == place) return;
  place_ = place;
  refresh(Aspect::kPlace);
}

void Control::move_to(int left, int top) { set_place({left, top, place_.width, place_.height}); }

void Control::set_focus() {
  refresh(Aspect::kFocus);
  take_user_focus();
}

bool Control::reachable() const {
  for (const Control* control = this; control != nullptr; control = control->parent_) {
    if (!control->takes_input() || !control->visible_) return false;
  }
  return true;
}

void Control::take_user_focus() {
  if (on_got_focus) on_got_focus();
}

}  // namespace quenda

#include "platform/controls/simple_controls.h"

#include "text/fault.h"

namespace quenda {

void CheckBox::set_ticked(bool ticked) {
  if (ticked_ == ticked) return;
  ticked_ = ticked;
  refresh(Aspect::kValue);
  if (on_click) on_click();
}

void CheckBox::set_value(int value) {
  if (value != 0 && value != 1) raise_fault(kFaultInvalidProperty);
  set_ticked(value == 1);
}

void CheckBox::take_user_click() {
  if (reachable()) set_ticked(!ticked_);
}

void OptionButton::choose() {
  if (chosen_) return;
  for (Control* control : host().controls()) {
    if (control == this || control->kind() != kind() || control->name() != name()) continue;
    auto& other = static_cast<OptionButton&>(*control);
    other.chosen_ = false;
    other.refresh(Aspect::kValue);
  }
  chosen_ = true;
  refresh(Aspect::kValue);
  if (on_click) on_click();
}

void OptionButton::take_user_click() {
  if (reachable()) choose();
}

void StatusBar::set_panel(int number, std::string_view text) {
  std::string& panel = panels_.at(static_cast<std::size_t>(number - 1));
  if (panel == text) return;
  panel = text;
  refresh(Aspect::kText);
}

}  // namespace quenda

#include "platform/controls/lists.h"

#include <utility>

#include "text/fault.h"

namespace quenda {

void ListBox::check(int position) const {
  if (position < 0 || position >= count()) raise_fault(kFaultInvalidPropertyIndex);
}

const std::string& ListBox::item(int position) const {
  check(position);
  return (*items_)[static_cast<std::size_t>(position)];
}

void ListBox::set_items(std::vector<std::string> items) {
  share_items(std::make_shared<const std::vector<std::string>>(std::move(items)));
}

void ListBox::share_items(std::shared_ptr<const std::vector<std::string>> items) {
  items_ = std::move(items);
  selected_.assign(items_->size(), false);
  selected_count_ = 0;
  list_index_ = -1;
  refresh(Aspect::kItems);
}

bool ListBox::selected(int position) const {
  check(position);
  return selected_[static_cast<std::size_t>(position)];
}

void ListBox::store(int position, bool selected) {
  selected_[static_cast<std::size_t>(position)] = selected;
  selected_count_ += selected ? 1 : -1;
  list_index_ = position;
}

void ListBox::set_selected(int position, bool selected) {
  check(position);
  if (this->selected(position) == selected) return;
  store(position, selected);
  refresh(Aspect::kSelection);
  if (on_click) on_click();
}

std::vector<int> ListBox::selected_positions() const {
  std::vector<int> positions;
  positions.reserve(static_cast<std::size_t>(selected_count_));
  for (int i = 0; i < count() && static_cast<int>(positions.size()) < selected_count_; ++i) {
    if (selected_[static_cast<std::size_t>(i)]) positions.push_back(i);
  }
  return positions;
}

void ListBox::take_user_selection(int position, bool selected) {
  check(position);
  if (!reachable() || this->selected(position) == selected) return;
  store(position, selected);
  if (on_click) on_click();
}

void ComboList::set_items(std::vector<std::string> items) {
  items_ = std::move(items);
  list_index_ = -1;
  refresh(Aspect::kItems);
}

void ComboList::set_list_index(int position) {
  if (position < -1 || position >= count()) raise_fault(kFaultInvalidProperty);
  list_index_ = position;
  refresh(Aspect::kIndex);
  if (on_click) on_click();
}

std::string_view ComboList::text() const {
  return list_index_ < 0 ? std::string_view() : items_[static_cast<std::size_t>(list_index_)];
}

void ComboList::take_user_index(int position) {
  if (!reachable() || position < -1 || position >= count()) return;
  list_index_ = position;
  if (on_click) on_click();
}

}  // namespace quenda

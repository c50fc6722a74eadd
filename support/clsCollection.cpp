#include "support/clsCollection.h"

#include <iterator>
#include <utility>

#include "support/procedure.h"
#include "text/conversions.h"
#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

std::string text_of(const CollectionValue& value) {
  const auto* const text = std::get_if<std::string>(&value);
  return text != nullptr ? *text : std::string();
}

}  // namespace

clsCollection clsCollection::Clone() const {
  clsCollection copy;
  for (const Item& item : items_) copy.Add(item.value);
  return copy;
}

// The queue.

bool clsCollection::Queue_Add(std::string_view text) {
  if (items_.size() >= kMostQueued) {
    if (QueueFull) QueueFull();
    return false;
  }
  ++running_key_;
  const bool added = append(std::string(text), concat("Key", std::to_string(running_key_)), true);
  while (queue_limit_ != 0 && !items_.empty() && Count() > queue_limit_) erase(items_.begin());
  const auto& raised = info_delay_ != 0 && Count() <= info_delay_ ? QueueTimerStart : QueueAdded;
  if (raised) raised();
  return added;
}

std::string clsCollection::Queue_ReadLast() {
  std::string text = Queue_ViewLast();
  RemoveFirst();
  return text;
}

std::string clsCollection::Queue_ViewLast() const { return text_of(GetItemByIndex(1)); }

std::string clsCollection::Queue_GetByIndex(std::int32_t position) const {
  const auto item = at(position);
  if (item == items_.end()) raise_fault(kFaultIndexRange);
  return text_of(item->value);
}

// The collection.

bool clsCollection::append(CollectionValue value, std::string_view key, bool keyed) {
  if (keyed && keys_.contains(std::string(key))) return false;
  items_.push_back({std::move(value), std::string(key), keyed});
  if (keyed) keys_.emplace(key, std::prev(items_.end()));
  return true;
}

void clsCollection::erase(Items::iterator item) {
  if (item->keyed) keys_.erase(item->key);
  items_.erase(item);
}

clsCollection::Items::const_iterator clsCollection::at(std::int32_t position) const {
  return position < 1 || position > Count() ? items_.end()
                                            : std::next(items_.begin(), position - 1);
}

const clsCollection::Item* clsCollection::by_key(std::string_view key) const {
  const auto found = keys_.find(std::string(key));
  return found == keys_.end() ? nullptr : &*found->second;
}

bool clsCollection::Add(CollectionValue value) {
  append(std::move(value), {}, false);
  if (QueueAdded) QueueAdded();
  return true;
}

bool clsCollection::AddByINIData(std::string_view key, std::string_view value) {
  return Add(concat(key, "=", value));
}

bool clsCollection::AddByKeyValue(std::string_view key, CollectionValue value) {
  const bool added = append(std::move(value), key, true);
  if (QueueAdded) QueueAdded();
  return added;
}

void clsCollection::ChangeByKeyValue(std::string_view key, std::string_view value) {
  if (items_.empty()) return;
  RemoveByKeyName(key);
  append(concat(key, "=", value), key, true);
}

std::string clsCollection::ItemByKeyValue(std::string_view key, std::string_view standard) const {
  const Item* const item = by_key(key);
  return item == nullptr ? std::string(standard)
                         : replace_all(text_of(item->value), concat(key, "="), "");
}

std::string clsCollection::GetItemByIndexByKeyValue(std::int32_t position) const {
  const auto item = at(position);
  if (item == items_.end()) return {};
  const std::string text = text_of(item->value);
  const std::string key = item->keyed ? item->key : text.substr(0, text.find('='));
  return replace_all(text, concat(key, "="), "");
}

bool clsCollection::RemoveByKeyName(std::string_view key) {
  const auto found = keys_.find(std::string(key));
  if (found == keys_.end()) return false;
  const auto item = found->second;
  erase(item);
  return true;
}

bool clsCollection::RemoveByIndex(std::string_view position) {
  double number = 0;
  skip_faults({[&] { number = to_number(position); }});
  if (number < 1 || number > Count()) return false;
  erase(std::next(items_.begin(), static_cast<std::ptrdiff_t>(number) - 1));
  return true;
}

bool clsCollection::RemoveFirst() {
  if (items_.empty()) return false;
  erase(items_.begin());
  return true;
}

CollectionValue clsCollection::ItemByKey(std::string_view key) const {
  bool found = false;
  return GetItemByKey(key, found);
}

void clsCollection::ChangeKey(std::string_view old_key, std::string_view new_key) {
  const Item* const item = by_key(old_key);
  if (item != nullptr && append(item->value, new_key, true)) RemoveByKeyName(old_key);
}

CollectionValue clsCollection::GetItemByKey(std::string_view key, bool& found) const {
  const Item* const item = by_key(key);
  found = item != nullptr;
  return found ? item->value : CollectionValue();
}

CollectionValue clsCollection::GetItemByIndex(std::int32_t position) const {
  const auto item = at(position);
  return item == items_.end() ? CollectionValue() : item->value;
}

void clsCollection::Clear() {
  keys_.clear();
  items_.clear();
}

}  // namespace quenda

#pragma once

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"
#include "text/fault.h"

namespace quenda {

/// Controls of one kind under one name, told apart by their index; the indexes may have gaps.
template <class T>
class ControlArray {
 public:
  ControlArray(ControlHost& host, std::string_view name, std::initializer_list<int> indexes) {
    for (const int index : indexes) items_.push_back(std::make_unique<T>(host, name, index));
  }

  /// The control of that index; fault 340 when the array has none.
  T& operator()(int index) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const auto& item) { return item->index() == index; });
    if (found == items_.end()) raise_fault(kFaultNoControlElement);
    return **found;
  }

  [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
  [[nodiscard]] auto begin() const { return items_.begin(); }
  [[nodiscard]] auto end() const { return items_.end(); }

 private:
  std::vector<std::unique_ptr<T>> items_;
};

}  // namespace quenda

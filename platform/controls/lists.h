#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"

namespace quenda {

/// A list in which the user can select any number of entries.
class ListBox : public Control {
 public:
  ListBox(ControlHost& host, std::string_view name, int index = -1)
      : Control(host, ControlKind::kListBox, name, index) {}

  [[nodiscard]] int count() const { return static_cast<int>(items_->size()); }
  /// Text of the entry at a position from 0; fault 381 beyond the end, as for every position here.
  [[nodiscard]] const std::string& item(int position) const;
  void set_items(std::vector<std::string> items);
  /// The same for entries that several lists have in common, so that none copies them.
  void share_items(std::shared_ptr<const std::vector<std::string>> items);

  [[nodiscard]] bool selected(int position) const;
  /// Raises Click when the entry's selection changes.
  void set_selected(int position, bool selected);
  [[nodiscard]] int selected_count() const { return selected_count_; }
  /// Positions of the selected entries, from the top.
  [[nodiscard]] std::vector<int> selected_positions() const;
  /// The entry that the user touched last; -1 for none.
  [[nodiscard]] int list_index() const { return list_index_; }

  std::function<void()> on_click;
  /// The user selected or deselected the entry. When the handler takes that back, the peer is told.
  void take_user_selection(int position, bool selected);

 private:
  void check(int position) const;
  void store(int position, bool selected);

  std::shared_ptr<const std::vector<std::string>> items_ =
      std::make_shared<const std::vector<std::string>>();
  std::vector<bool> selected_;
  int selected_count_ = 0;
  int list_index_ = -1;
};

/// A drop-down list that takes no typing.
class ComboList : public Control {
 public:
  ComboList(ControlHost& host, std::string_view name)
      : Control(host, ControlKind::kComboList, name) {}

  [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
  /// Replaces the entries; nothing is chosen then, and no event is raised.
  void set_items(std::vector<std::string> items);

  /// Position of the chosen entry, -1 for none.
  [[nodiscard]] int list_index() const { return list_index_; }
  /// Raises Click, also for -1 and for the entry already chosen: choosing an entry again is a
  /// choice. Fault 380 for a position that the list does not have.
  void set_list_index(int position);
  /// The chosen entry's text, empty for none.
  [[nodiscard]] std::string_view text() const;

  std::function<void()> on_click;
  void take_user_index(int position);

 private:
  std::vector<std::string> items_;
  int list_index_ = -1;
};

}  // namespace quenda

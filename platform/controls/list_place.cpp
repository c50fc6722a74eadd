#include "platform/controls/list_place.h"

#include "platform/controls/list_view.h"
#include "platform/controls/lists.h"
#include "text/text.h"

namespace quenda {
namespace {

/// The row at a position from 0, -1 for none.
std::size_t row_of(int position) {
  return position < 0 ? 0 : static_cast<std::size_t>(position) + 1;
}

}  // namespace

std::optional<ListPlace> list_place(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kListBox: {
      const auto& list = static_cast<const ListBox&>(control);
      return ListPlace{row_of(list.list_index()), static_cast<std::size_t>(list.count())};
    }
    case ControlKind::kComboList: {
      const auto& list = static_cast<const ComboList&>(control);
      return ListPlace{row_of(list.list_index()), static_cast<std::size_t>(list.count())};
    }
    case ControlKind::kListView: {
      const auto& list = static_cast<const ListView&>(control);
      if (list.selected() < 0) return ListPlace{0, list.count()};
      const auto chosen = static_cast<std::size_t>(list.selected());
      return ListPlace{list.order().position_of(chosen) + 1, list.count()};
    }
    default:
      return std::nullopt;
  }
}

std::string row_in_words(std::string_view pattern, std::size_t row, std::size_t rows) {
  if (row == 0 || row > rows) return {};
  return replace_all(replace_all(pattern, "%1", std::to_string(row)), "%2", std::to_string(rows));
}

}  // namespace quenda

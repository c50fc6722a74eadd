#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls/list_view.h"
#include "platform/win32/windows_headers.h"

namespace quenda {

class FormWindow;

/// The columns of a native list: their headings, the arrow of the sorted one, their widths, and
/// what the user has made of those. They fill the list.
class ListColumns {
 public:
  ListColumns(FormWindow& form, ListView& list) : form_(form), list_(list) {}

  /// Shows the columns as they are now; only what differs is sent.
  void show(HWND window);
  /// Whether there are any on the screen.
  [[nodiscard]] bool shown() const { return !shown_.empty(); }
  /// What stands in a heading.
  [[nodiscard]] std::wstring heading(std::size_t column) const;

  /// The user has dragged the right border of a column, which is to be shown anew then. Those
  /// before it stay where they are from now on. Whether that changes anything.
  bool take_user_width(std::size_t column, int pixels);
  /// Makes a column as wide as its heading and contents, up to the whole list.
  void fit(HWND window, std::size_t column);
  void fit_all(HWND window);

 private:
  struct Shown {
    std::wstring heading;
    int width = 0;  // in pixels
    friend bool operator==(const Shown&, const Shown&) = default;
  };

  [[nodiscard]] int dpi() const;
  [[nodiscard]] int room(HWND window) const;
  [[nodiscard]] std::vector<Shown> wanted(HWND window) const;
  [[nodiscard]] int width_of_contents(HWND window, std::size_t column) const;
  void choose(std::size_t column, int pixels);
  /// A choice is about the columns that the user has seen.
  void forget_choices_of_others();
  void mark_sorted(HWND header) const;

  FormWindow& form_;
  ListView& list_;
  std::vector<Shown> shown_;  // as last asked for
  std::optional<ViewOrder::Key> shown_sorted_by_;
  std::vector<ListColumn> known_;  // those that the choices are about
  std::vector<int> chosen_;        // widths chosen by the user, in twips, 0 for none
};

}  // namespace quenda

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/control.h"
#include "platform/controls/view_order.h"
#include "text/flat_table.h"

namespace quenda {

/// What a column of a preview has been chosen for; the native side has a colour for each.
enum class ColumnKind { kNone, kName, kNumber, kAddress1, kAddress2 };

struct ListColumn {
  std::string heading;
  int width = 1440;  // twips
  ColumnKind kind = ColumnKind::kNone;
};

/// Rows that a list view shows without holding them.
class RowSource {
 public:
  virtual ~RowSource() = default;
  [[nodiscard]] virtual std::size_t rows() const = 0;
  /// The text of one cell, made when it is asked for.
  [[nodiscard]] virtual std::string cell(std::size_t row, std::size_t column) const = 0;
};

/// A report list: columns with headings, rows of texts. It holds its rows itself or asks a source
/// for them; the native side asks for the visible cells only.
class ListView : public Control {
 public:
  ListView(ControlHost& host, std::string_view name)
      : Control(host, ControlKind::kListView, name), table_(1) {}

  [[nodiscard]] const std::vector<ListColumn>& columns() const { return columns_; }
  /// Also empties the list.
  void set_columns(std::vector<ListColumn> columns) {
    const std::size_t all = columns.size();
    set_columns(std::move(columns), all);
  }
  /// The list's own rows have texts for the first columns; `made_cell` makes those of the others.
  void set_columns(std::vector<ListColumn> columns, std::size_t held);
  void set_column_heading(std::size_t column, std::string_view heading);
  void set_column_kinds(const std::vector<ColumnKind>& kinds);

  [[nodiscard]] std::size_t count() const;
  [[nodiscard]] std::string cell(std::size_t row, std::size_t column) const;

  /// The rows that the list holds itself.
  [[nodiscard]] const FlatTable& table() const { return table_; }
  void set_table(FlatTable table);
  void add_row(std::initializer_list<std::string_view> cells);
  void set_cell(std::size_t row, std::size_t column, std::string_view text);
  void remove_row(std::size_t row);
  void clear();
  /// The text of a cell that the list's own rows do not hold, made when the row is shown.
  std::function<std::string(std::size_t row, std::size_t column)> made_cell;
  /// Such texts are others now: rows that are sorted by them are sorted anew.
  void made_cells_changed();
  /// Shows the rows of a source from now on, until the list is cleared or given rows of its own.
  /// The source has to live that long, and a change of it is told with `source_changed`.
  void set_source(const RowSource* source);
  void source_changed();

  /// Whether the user may sort the rows for looking; they keep their own order all the same. Part
  /// of the design.
  [[nodiscard]] bool sortable() const { return sortable_; }
  void set_sortable(bool sortable) { sortable_ = sortable; }
  /// In which order the rows are seen.
  [[nodiscard]] const ViewOrder& order() const { return order_; }
  /// The user chose a heading.
  void take_user_heading(std::size_t column);

  /// The selected row, -1 for none.
  [[nodiscard]] int selected() const { return selected_; }
  void select(int row);

  /// The user chose another row, or none.
  std::function<void()> on_select;
  std::function<void()> on_double_click;
  /// The virtual key code of a pressed key; 46 is Delete, 13 Enter.
  std::function<void(std::int16_t code)> on_key_down;
  /// Ctrl+C was pressed.
  std::function<void()> on_copy;
  void take_user_select(int row);
  void take_user_double_click();
  void take_user_key_down(std::int16_t code);
  void take_user_copy();

 private:
  void rows_changed();

  std::vector<ListColumn> columns_;
  FlatTable table_;
  const RowSource* source_ = nullptr;
  ViewOrder order_;
  bool sortable_ = false;
  int selected_ = -1;
};

}  // namespace quenda

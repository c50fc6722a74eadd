#include "platform/controls/list_view.h"

#include <algorithm>
#include <utility>

#include "text/fault.h"

namespace quenda {

void ListView::set_columns(std::vector<ListColumn> columns, std::size_t held) {
  columns_ = std::move(columns);
  table_ = FlatTable(std::max<std::size_t>(held, 1));
  source_ = nullptr;
  order_.reset();
  selected_ = -1;
  refresh(Aspect::kColumns);
  refresh(Aspect::kRows);
}

void ListView::set_column_heading(std::size_t column, std::string_view heading) {
  if (column >= columns_.size()) raise_fault(kFaultIndexRange);
  columns_[column].heading = heading;
  refresh(Aspect::kColumns);
}

void ListView::set_column_kinds(const std::vector<ColumnKind>& kinds) {
  for (std::size_t i = 0; i < columns_.size() && i < kinds.size(); ++i) columns_[i].kind = kinds[i];
  refresh(Aspect::kColumns);
}

std::size_t ListView::count() const { return source_ != nullptr ? source_->rows() : table_.rows(); }

std::string ListView::cell(std::size_t row, std::size_t column) const {
  if (source_ != nullptr) return source_->cell(row, column);
  if (column >= table_.columns() && made_cell) return made_cell(row, column);
  return std::string(table_.cell(row, column));
}

void ListView::set_table(FlatTable table) {
  table_ = std::move(table);
  source_ = nullptr;
  rows_changed();
}

void ListView::add_row(std::initializer_list<std::string_view> cells) {
  table_.add_row(std::span(cells.begin(), cells.size()));
  order_.row_added(table_.rows() - 1);
  refresh(Aspect::kRows);
}

void ListView::set_cell(std::size_t row, std::size_t column, std::string_view text) {
  table_.set_cell(row, column, text);
  refresh(Aspect::kRows);
}

void ListView::remove_row(std::size_t row) {
  table_.remove_row(row);
  order_.row_removed(row);
  selected_ = -1;
  refresh(Aspect::kRows);
}

void ListView::clear() {
  table_.clear();
  source_ = nullptr;
  rows_changed();
}

void ListView::set_source(const RowSource* source) {
  table_.clear();
  source_ = source;
  rows_changed();
}

void ListView::source_changed() { rows_changed(); }

void ListView::rows_changed() {
  if (order_.key()) refresh(Aspect::kColumns);
  order_.reset();
  selected_ = count() > 0 ? 0 : -1;
  refresh(Aspect::kRows);
}

void ListView::take_user_heading(std::size_t column) {
  if (!reachable() || !sortable_ || source_ != nullptr || column >= columns_.size()) return;
  order_.sort_by(column, table_.rows(), [&](std::size_t row) { return cell(row, column); });
  refresh(Aspect::kColumns);
  refresh(Aspect::kRows);
}

void ListView::made_cells_changed() {
  const auto& key = order_.key();
  if (key && key->column >= table_.columns()) {
    const std::size_t column = key->column;
    order_.sort_again(table_.rows(), [&](std::size_t row) { return cell(row, column); });
  }
  refresh(Aspect::kRows);
}

void ListView::select(int row) {
  if (row < -1 || row >= static_cast<int>(count())) raise_fault(kFaultIndexRange);
  selected_ = row;
  refresh(Aspect::kIndex);
}

void ListView::take_user_select(int row) {
  selected_ = row;
  if (on_select) on_select();
}

void ListView::take_user_double_click() {
  if (reachable() && on_double_click) on_double_click();
}

void ListView::take_user_copy() {
  if (reachable() && on_copy) on_copy();
}

void ListView::take_user_key_down(std::int16_t code) {
  if (reachable() && on_key_down) on_key_down(code);
}

}  // namespace quenda

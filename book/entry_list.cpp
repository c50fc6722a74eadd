#include "book/entry_list.h"

#include <span>
#include <utility>

#include "text/conversions.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kShortestName = 3;
constexpr std::size_t kLongestDroppedNumber = 7;

using Cells = std::span<std::string_view>;

/// Lets the cells be what a split of the row's line at every ";" would give, where one of them has
/// a
/// ";" inside. Returns whether one has.
bool shift_at_separators(Cells cells) {
  bool inside = false;
  for (const std::string_view cell : cells) inside = inside || cell.find(';') != cell.npos;
  if (!inside) return false;
  const std::string_view last = cells.back();
  std::string_view line(cells.front().data(),
                        static_cast<std::size_t>(last.data() + last.size() - cells.front().data()));
  for (std::string_view& cell : cells) next_part(line, ";", cell);
  return true;
}

}  // namespace

bool number_importable(std::string_view number) {
  return number.size() > kLongestDroppedNumber && is_numeric(number);
}

bool name_too_short(std::string_view name) { return name.size() < kShortestName; }

FlatTable entry_rows(FlatTable rows, bool suppress_short_names, const OnStep& on_step) {
  Steps steps(on_step, rows.rows());
  std::size_t done = 0;
  const bool shifted = rows.has_separators_inside();
  rows.rewrite_rows([&](Cells cells) {
    steps.row_done(++done);
    if (shifted) shift_at_separators(cells);
    if (!number_importable(cells[kEntryNumber])) return false;
    if (suppress_short_names && name_too_short(cells[kEntryName])) return false;
    for (const EntryColumn column : {kEntryName, kEntryAddress})
      cells[column] = trim(cells[column]);
    return true;
  });
  rows.replace('|', ',');
  return rows;
}

FlatTable caller_rows(FlatTable rows) {
  rows.rewrite_rows([](Cells cells) {
    if (!shift_at_separators(cells)) return is_numeric(cells[kEntryNumber]);
    const bool kept = is_numeric(cells[kEntryNumber]);
    cells[kEntryNumber] = cells[kEntryNumber].substr(0, 0);
    cells[kEntryAddress] = cells[kEntryAddress].substr(0, 0);
    return kept;
  });
  return rows;
}

}  // namespace quenda

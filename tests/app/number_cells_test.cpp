#include "app/account/number_cells.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "sources/delimited_text.h"

namespace quenda {
namespace {

TEST(NumberCells, AreTheFieldsThatTheRecordIsSplitInto) {
  std::mt19937 random(5);
  const auto below = [&](std::size_t end) { return random() % end; };
  std::string text = "a;b;c;d\r\n";
  for (int line = 0; line < 300; ++line) {
    for (std::size_t field = below(9); field > 0; --field) {
      text += std::string(below(3) == 0 ? below(40) : below(4), 'x');
      if (field > 1) text += ';';
    }
    text += "\r\n";
  }
  RecordTable records = build_records(text, ';', [](auto, auto) {});
  pad_records(records, ';', [](auto, auto) {});
  const std::vector<std::size_t> columns = {6, 0, 3, 7};
  NumberCells cells(records, ';', columns);
  ASSERT_EQ(cells.columns(), 3U) << "more give no entries";
  RecordFields fields;
  for (std::size_t at = 0; at < records.size(); ++at) {
    cells.find(at);
    fields.split(records, at, ';', 7);
    for (std::size_t column = 0; column < cells.columns(); ++column) {
      const std::size_t position = columns[column];
      ASSERT_EQ(cells[column].has_value(), fields.has(position)) << at;
      if (cells[column]) {
        ASSERT_EQ(*cells[column], fields[position].text) << at;
      }
    }
  }
}

}  // namespace
}  // namespace quenda

#include "app/account/number_cells.h"

#include <algorithm>
#include <utility>

#include "text/place_finder.h"
#include "wizard/composition.h"

namespace quenda {

NumberCells::NumberCells(const RecordTable& records, char delimiter,
                         std::vector<std::size_t> columns)
    : records_(records), delimiter_(delimiter), columns_(std::move(columns)) {
  columns_.resize(std::min(columns_.size(), kNumberRows));
  for (const std::size_t position : columns_) {
    fields_.resize(std::max(fields_.size(), position + 1));
  }
}

void NumberCells::find(std::size_t record) {
  const std::string_view text = records_[record];
  padded_ = records_.padded_delimiters(record);
  PlaceFinder delimiters(text, delimiter_);
  delimiters.allow_reading(records_.from(record).size());
  found_ = fields_.size();
  std::size_t start = 0;
  for (std::string_view& field : fields_) {
    const std::size_t end = delimiters.next();
    field = {text.data() + start, end - start};
    start = end + 1;
    if (end < text.size()) continue;
    found_ = static_cast<std::size_t>(&field - fields_.data()) + 1;
    break;
  }
}

}  // namespace quenda

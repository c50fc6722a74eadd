#include "wizard/pages/record_preview.h"

#include "sources/delimited_text.h"
#include "sources/kept_breaks.h"

namespace quenda {

void RecordPreview::show(const RecordTable& records, char delimiter, bool converted) {
  converted_ = converted;
  records_ = &records;
  delimiter_ = delimiter;
  rows_ = records.empty() ? 0 : records.size() - 1;
  // What stands behind the last line end of a file is no record to look at.
  const auto blank = [delimiter](std::string_view record) {
    return record.find_first_not_of(delimiter) == record.npos;
  };
  while (rows_ > 0 && blank(records[rows_])) --rows_;
}

std::size_t RecordPreview::rows() const { return rows_; }

std::string RecordPreview::cell(std::size_t row, std::size_t column) const {
  RecordFields fields;
  fields.split(*records_, row + 1, delimiter_, column);
  if (!fields.has(column)) return {};
  const std::string shown = shown_field(fields[column].text, delimiter_);
  return converted_ ? in_one_line(shown) : shown;
}

}  // namespace quenda

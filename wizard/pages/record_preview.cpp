#include "wizard/pages/record_preview.h"

#include "sources/delimited_text.h"

namespace quenda {

void RecordPreview::show(const RecordTable& records, char delimiter) {
  records_ = &records;
  delimiter_ = delimiter;
}

std::size_t RecordPreview::rows() const {
  return records_ == nullptr || records_->empty() ? 0 : records_->size() - 1;
}

std::string RecordPreview::cell(std::size_t row, std::size_t column) const {
  RecordFields fields;
  fields.split(*records_, row + 1, delimiter_, column);
  return fields.has(column) ? shown_field(fields[column], delimiter_) : std::string();
}

}  // namespace quenda

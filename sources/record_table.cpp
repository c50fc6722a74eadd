#include "sources/record_table.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

#include "text/fault.h"
#include "text/place_finder.h"
#include "text/text.h"

namespace quenda {

RecordTable::RecordTable(std::shared_ptr<const std::string> text, std::vector<std::size_t> starts)
    : text_(std::move(text)), starts_(std::move(starts)) {}

std::string_view RecordTable::operator[](std::size_t record) const {
  if (record >= size()) raise_fault(kFaultIndexRange);
  const std::size_t start = starts_[record];
  return std::string_view(*text_).substr(start, starts_[record + 1] - kCrLf.size() - start);
}

void RecordTable::pad(std::size_t delimiters, std::size_t until) {
  padding_ = delimiters;
  padded_until_ = until;
}

std::string RecordTable::padded_text(std::size_t record, char delimiter) const {
  std::string text((*this)[record]);
  const std::size_t own = count_of(text, delimiter);
  const std::size_t wanted = padded_delimiters(record);
  if (wanted > own) text.append(wanted - own, delimiter);
  return text;
}

void RecordFields::split(const RecordTable& table, std::size_t record, char delimiter,
                         std::size_t last) {
  fields_.resize(std::max(fields_.size(), last + 1));
  count_ = 0;
  padded_ = table.padded_delimiters(record);
  const std::string_view text = table[record];
  PlaceFinder marks(text, delimiter, '"', '\r', '\n');
  std::size_t start = 0;
  RecordField field;
  bool more = true;
  while (more && count_ <= last) {
    const std::size_t mark = marks.next();
    more = mark < text.size();
    if (more && text[mark] != delimiter) {
      (text[mark] == '"' ? field.quotes : field.breaks) = true;
      continue;
    }
    field.text = {text.data() + start, mark - start};
    fields_[count_++] = field;
    start = mark + 1;
    field = {};
  }
  has_delimiter_ = more || count_ > 1 || padded_ > 0;
}

const RecordField& RecordFields::operator[](std::size_t position) const {
  static const RecordField kPadding;
  if (!has(position)) raise_fault(kFaultIndexRange);
  return position < count_ ? fields_[position] : kPadding;
}

}  // namespace quenda

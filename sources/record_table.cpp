#include "sources/record_table.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

#include "text/place_finder.h"
#include "text/text.h"

namespace quenda {

RecordTable::RecordTable(std::shared_ptr<const std::string> text, std::vector<std::size_t> starts)
    : text_(std::move(text)), starts_(std::move(starts)) {}

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
  if (fields_.size() <= last) fields_.resize(last + 1);
  padded_ = table.padded_delimiters(record);
  const std::string_view text = table[record];
  PlaceFinder marks(text, delimiter, '"', '\r', '\n');
  marks.allow_reading(table.from(record).size());
  std::size_t count = 0;
  std::size_t start = 0;
  std::uint32_t quotes = 0;
  bool breaks = false;
  bool more = true;
  while (more && count <= last) {
    const std::size_t mark = marks.next();
    more = mark < text.size();
    if (more && text[mark] != delimiter) {
      const bool quote = text[mark] == '"';
      quotes += quote ? 1 : 0;
      breaks = breaks || !quote;
      continue;
    }
    fields_[count++] = {{text.data() + start, mark - start}, quotes, breaks};
    start = mark + 1;
    quotes = 0;
    breaks = false;
  }
  count_ = count;
  has_delimiter_ = more || count_ > 1 || padded_ > 0;
}

const RecordField& RecordFields::operator[](std::size_t position) const {
  static const RecordField kPadding;
  if (!has(position)) raise_fault(kFaultIndexRange);
  return position < count_ ? fields_[position] : kPadding;
}

}  // namespace quenda

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
  fields_.clear();
  padded_ = table.padded_delimiters(record);
  const std::string_view text = table[record];
  PlaceFinder delimiters(text, delimiter, delimiter);
  bool more = true;
  for (std::size_t start = 0; more && fields_.size() <= last;) {
    const std::size_t end = delimiters.next();
    more = end < text.size();
    fields_.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  has_delimiter_ = more || fields_.size() > 1 || padded_ > 0;
}

std::string_view RecordFields::operator[](std::size_t position) const {
  if (!has(position)) raise_fault(kFaultIndexRange);
  return position < fields_.size() ? fields_[position] : std::string_view();
}

}  // namespace quenda

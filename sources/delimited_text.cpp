#include "sources/delimited_text.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <utility>

#include "sources/record_builder.h"
#include "text/byte_block.h"
#include "text/character_counts.h"
#include "text/fault.h"
#include "text/line_breaks.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr char kQuote = '"';
constexpr std::size_t kPauseBytes = 1024UL * 1024;

/// Where the next pair of quotes stands in the text; its size when there is none.
std::size_t find_pair(std::string_view text, std::size_t from) {
  constexpr std::size_t kSize = ByteBlock::kSize;
  // A block is looked at together with the byte behind it.
  for (; text.size() - from > kSize; from += kSize) {
    const ByteBlock quotes = ByteBlock::load(text.data() + from).equal_to(kQuote);
    const ByteBlock behind = ByteBlock::load(text.data() + from + 1).equal_to(kQuote);
    const std::uint32_t pairs = (quotes & behind).top_bits();
    if (pairs != 0) return from + static_cast<std::size_t>(std::countr_zero(pairs));
  }
  return std::min(text.find("\"\"", from), text.size());
}

/// The record check works with 16-bit numbers.
constexpr std::size_t kMostDelimiters = std::numeric_limits<std::int16_t>::max();

std::size_t delimiters_of(std::string_view record, char delimiter) {
  const std::size_t count = count_of(record, delimiter);
  if (count > kMostDelimiters) raise_fault(kFaultOverflow);
  return count;
}

}  // namespace

DelimiterCounts count_delimiters(std::string_view text) {
  const auto [first, second, third, line_breaks] =
      count_each(text, kDelimiters[0], kDelimiters[1], kDelimiters[2], '\r');
  return {{first, second, third}, line_breaks};
}

int choose_delimiter(const DelimiterCounts& counts) {
  const auto most = std::max_element(counts.of.begin(), counts.of.end());
  if (std::count(counts.of.begin(), counts.of.end(), *most) > 1) return -1;
  return static_cast<int>(most - counts.of.begin());
}

bool delimiter_acceptable(const DelimiterCounts& counts, int delimiter) {
  return counts.of.at(static_cast<std::size_t>(delimiter)) >= counts.line_breaks;
}

RecordTable split_lines(std::shared_ptr<const std::string> text) {
  const std::string_view all = *text;
  std::vector<std::size_t> starts = {0};
  for (auto at = all.find(kCrLf); at != all.npos; at = all.find(kCrLf, at + kCrLf.size())) {
    starts.push_back(at + kCrLf.size());
  }
  if (starts.size() == 1) return {};
  starts.push_back(all.size() + kCrLf.size());
  return {std::move(text), std::move(starts)};
}

void remove_doubled_quotes(std::string& text, const std::function<void()>& pause) {
  constexpr std::size_t kPairSize = 2;
  // What is written never overtakes what is read, so the view stays true where it is still read.
  const std::string_view all = text;
  char* to = text.data();
  for (std::size_t read = 0; read < all.size();) {
    pause();
    const std::size_t until = std::min(all.size(), read + kPauseBytes);
    // A pair can begin with the last character of a block.
    const std::string_view seen = all.substr(0, until + 1);
    while (read < until) {
      const std::size_t at = std::min(find_pair(seen, read), until);
      const char* const from = all.data() + read;
      // Up to the first pair everything stays where it is.
      to = to == from ? to + (at - read) : std::copy(from, all.data() + at, to);
      read = at < until ? at + kPairSize : at;
    }
  }
  text.resize(static_cast<std::size_t>(to - text.data()));
}

RecordTable build_records(std::string text, char delimiter, const OnStep& on_step,
                          std::size_t expected) {
  auto records = std::make_shared<std::string>(std::move(text));
  std::vector<std::size_t> starts = build_records_in(*records, delimiter, on_step, expected);
  return {std::move(records), std::move(starts)};
}

SourceLines lines_of_records(std::string text, char delimiter, std::size_t records) {
  const LineBreaks breaks = count_line_breaks(text);
  if (breaks.pairs + 1 == records && breaks.only_pairs()) return {};
  remove_doubled_quotes(text);
  std::string built = text;
  std::vector<std::size_t> begins;
  build_records_in(
      built, delimiter, [](auto, auto) {}, records, &begins);
  return lines_at(text, begins);
}

SourceLines lines_of_log(std::string_view text) {
  std::vector<std::size_t> begins;
  for (auto at = text.find(kCrLf); at != text.npos; at = text.find(kCrLf, at + kCrLf.size())) {
    begins.push_back(at + kCrLf.size());
  }
  return lines_at(text, begins);
}

void pad_records(RecordTable& records, char delimiter, const OnStep& on_step) {
  if (records.empty()) return;
  const std::size_t header = delimiters_of(records[0], delimiter);
  Steps steps(on_step, records.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (records[i].size() > kMostDelimiters) {
      // Padded as far as this record, should the count overflow.
      records.pad(header, i);
      delimiters_of(records[i], delimiter);
    }
    steps.row_done(i + 1);
  }
  records.pad(header, records.size());
}

std::string shown_field(std::string_view field, char delimiter) {
  std::string shown;
  shown.reserve(field.size());
  for (const char c : field) {
    if (c != kQuote) shown += c == '|' ? delimiter : c;
  }
  return shown;
}

std::vector<std::string> shown_fields(std::string_view record, char delimiter) {
  std::vector<std::string> fields;
  std::string_view part;
  while (fields.size() <= kMostFields && next_part(record, std::string_view(&delimiter, 1), part)) {
    fields.push_back(shown_field(part, delimiter));
  }
  return fields;
}

bool is_ispy_log(std::string_view path) {
  constexpr std::string_view kName = "ispy.log";
  const auto at = to_lower(path).find(kName);
  return at != std::string::npos && at + kName.size() == path.size();
}

}  // namespace quenda

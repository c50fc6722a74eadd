#include "sources/delimited_text.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr char kQuote = '"';
constexpr std::size_t kStepBytes = 64UL * 1024;
constexpr std::size_t kPauseBytes = 1024UL * 1024;

/// Builds the records inside the buffer that holds the text: what is written never overtakes what
/// is read.
class RecordBuilder {
 public:
  RecordBuilder(std::string& text, char delimiter) : text_(text), delimiter_(delimiter) {}

  std::vector<std::size_t> build(const OnStep& on_step) {
    const std::size_t size = text_.size();
    for (std::size_t next_step = 0; read_ < size;) {
      if (read_ >= next_step) {
        on_step(read_ + 1, size);
        next_step = read_ + kStepBytes;
      }
      const std::size_t until = std::min(size, next_step);
      while (read_ < until) {
        if (in_quotes_) {
          take_quoted();
        } else {
          take_plain(until);
        }
      }
    }
    finish_text();
    return std::move(starts_);
  }

 private:
  [[nodiscard]] bool quote_follows() const {
    return read_ + 1 < text_.size() && text_[read_ + 1] == kQuote;
  }

  void put(char c) { text_[written_++] = c; }

  /// Moves the characters up to the next one that means something outside quotes.
  void copy_plain(std::size_t until) {
    // Plain pointers: through the text the compiler would load its address anew for each byte.
    char* const data = text_.data();
    const char delimiter = delimiter_;
    std::size_t from = read_;
    std::size_t to = written_;
    while (from < until && data[from] != delimiter && data[from] != '\n') data[to++] = data[from++];
    read_ = from;
    written_ = to;
  }

  /// Copies up to the next character that means something outside quotes, and takes that too.
  void take_plain(std::size_t until) {
    copy_plain(until);
    if (read_ == until) return;
    const char c = text_[read_];
    if (c == delimiter_ && quote_follows()) {
      open_quotes();
    } else {
      put_outside(c);
      ++read_;
    }
  }

  /// One character inside quotes. The quoted part ends one character before the closing quote.
  void take_quoted() {
    const char c = text_[read_];
    if (c == delimiter_ && quote_follows()) {
      open_quotes();
      return;
    }
    if (quote_follows()) {
      in_quotes_ = false;
      put_outside(c);
    } else if (c == '\r' || c == '\n') {
      put(' ');
    } else {
      put(c == delimiter_ ? '|' : c);
    }
    ++read_;
  }

  void open_quotes() {
    finish_field();
    put(kQuote);
    read_ += 2;
    in_quotes_ = true;
  }

  void put_outside(char c) {
    if (c == delimiter_) {
      finish_field();
    } else if (c != '\n') {
      put(c);
    } else if (written_ > field_ && text_[written_ - 1] == '\r') {
      --written_;
      finish_record();
    }
  }

  /// A field that begins with a quote and does not end with one was cut by a delimiter that
  /// belongs to it.
  [[nodiscard]] char field_end() const {
    const bool cut = written_ > field_ && text_[field_] == kQuote && text_[written_ - 1] != kQuote;
    return cut ? '|' : delimiter_;
  }

  void finish_field() {
    put(field_end());
    field_ = written_;
  }

  void finish_record() {
    starts_.push_back(written_);
    field_ = written_;
  }

  void finish_text() {
    if (written_ > 0 || starts_.size() > 1) {
      const char end = field_end();
      text_.resize(written_);
      text_ += end;
    } else {
      text_.clear();
    }
    starts_.push_back(text_.size());
  }

  std::string& text_;
  char delimiter_;
  std::size_t read_ = 0;
  std::size_t written_ = 0;
  std::size_t field_ = 0;  // where the field being written begins
  bool in_quotes_ = false;
  std::vector<std::size_t> starts_ = {0};
};

/// The delimiters of a record as the 16-bit number that the record check works with.
std::int16_t delimiters_of(std::string_view record, char delimiter) {
  const std::size_t count = count_of(record, delimiter);
  if (count > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
    raise_fault(kFaultOverflow);
  }
  return static_cast<std::int16_t>(count);
}

}  // namespace

DelimiterCounts count_delimiters(std::string_view text) {
  DelimiterCounts counts;
  // Block by block, so that the four counts read each part of the file while it is in the cache.
  for (std::size_t at = 0; at < text.size(); at += kStepBytes) {
    const std::string_view block = text.substr(at, kStepBytes);
    for (std::size_t i = 0; i < kDelimiters.size(); ++i) {
      counts.of[i] += count_of(block, kDelimiters[i]);
    }
    counts.line_breaks += count_of(block, '\r');
  }
  return counts;
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
  return {std::move(text), std::move(starts), kCrLf.size()};
}

void remove_doubled_quotes(std::string& text, const std::function<void()>& pause) {
  constexpr std::string_view kPair = "\"\"";
  // What is written never overtakes what is read, so the view stays true where it is still read.
  const std::string_view all = text;
  char* to = text.data();
  for (std::size_t read = 0; read < all.size();) {
    pause();
    const std::size_t until = std::min(all.size(), read + kPauseBytes);
    // A pair can begin with the last character of a block.
    const std::string_view seen = all.substr(0, until + 1);
    while (read < until) {
      const std::size_t at = std::min(seen.find(kPair, read), until);
      const char* const from = all.data() + read;
      // Up to the first pair everything stays where it is.
      to = to == from ? to + (at - read) : std::copy(from, all.data() + at, to);
      read = at < until ? at + kPair.size() : at;
    }
  }
  text.resize(static_cast<std::size_t>(to - text.data()));
}

RecordTable build_records(std::string text, char delimiter, const OnStep& on_step) {
  auto records = std::make_shared<std::string>(std::move(text));
  std::vector<std::size_t> starts = RecordBuilder(*records, delimiter).build(on_step);
  return {std::move(records), std::move(starts), 0};
}

void pad_records(RecordTable& records, char delimiter, const OnStep& on_step) {
  if (records.empty()) return;
  const auto header = static_cast<std::size_t>(delimiters_of(records[0], delimiter));
  for (std::size_t i = 0; i < records.size(); ++i) {
    // Padded as far as this record, should the count overflow.
    records.pad(header, i);
    delimiters_of(records[i], delimiter);
    on_step(i + 1, records.size());
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
  while (next_part(record, std::string_view(&delimiter, 1), part)) {
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

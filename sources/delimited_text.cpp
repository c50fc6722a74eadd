#include "sources/delimited_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

#include "text/byte_block.h"
#include "text/character_counts.h"
#include "text/fault.h"
#include "text/line_breaks.h"
#include "text/place_finder.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr char kQuote = '"';
constexpr std::size_t kStepBytes = 64UL * 1024;
constexpr std::size_t kPauseBytes = 1024UL * 1024;

/// Builds the records inside the buffer that holds the text. Only quotes and line feeds need a
/// look, and only a lone line feed goes: up to the first one everything stays where it is, and
/// behind it what is written never overtakes what is read.
class RecordBuilder {
 public:
  /// `begins`, where one is given, gets the places in the text as it was where the records after
  /// the first begin.
  RecordBuilder(std::string& text, char delimiter, std::vector<std::size_t>* begins = nullptr)
      : text_(text),
        delimiter_(delimiter),
        marks_(text, kQuote, '\n'),
        inside_quotes_(delimiter),
        begins_(begins) {}

  std::vector<std::size_t> build(const OnStep& on_step, std::size_t expected = 0) {
    starts_.reserve(expected + 1);
    const std::size_t size = text_.size();
    std::size_t next_step = 0;
    const auto tell_step = [&] {
      if (read_ < next_step || read_ >= size) return;
      on_step(read_ + 1, size);
      next_step = read_ + kStepBytes;
    };
    for (std::size_t mark = 0; mark < size;) {
      tell_step();
      mark = marks_.next();
      // A long way to the next mark is gone in steps, too.
      while (mark - read_ > kStepBytes && (in_quotes_ || !quoted_field_)) {
        if (in_quotes_) {
          change_until(read_ + kStepBytes);
        } else {
          move_until(read_ + kStepBytes);
        }
        tell_step();
      }
      if (in_quotes_) {
        take_quoted(mark);
      } else {
        take_plain(mark);
      }
    }
    finish_text();
    return std::move(starts_);
  }

 private:
  /// What becomes of the characters inside quotes: line breaks become blanks, delimiters "|".
  class QuotedCharacters {
   public:
    explicit QuotedCharacters(char delimiter) : delimiter_(delimiter) {
      for (std::size_t i = 0; i < of_.size(); ++i) of_[i] = static_cast<char>(i);
      of_[index('\r')] = of_[index('\n')] = ' ';
      of_[index(delimiter)] = '|';
    }
    /// Changes so many characters from a place on. `readable` characters can be read there.
    void change(char* at, std::size_t size, std::size_t readable) const {
      constexpr std::size_t kSize = ByteBlock::kSize;
      for (std::size_t done = 0; done < size; done += kSize) {
        const std::size_t count = std::min(size - done, kSize);
        // Most have nothing to change.
        if (readable - done >= kSize && changed_at(at + done) << (32 - count) == 0) continue;
        for (char* c = at + done; c != at + done + count; ++c) *c = of_[index(*c)];
      }
    }

   private:
    /// A bit for each of the characters from there on that changes.
    [[nodiscard]] std::uint32_t changed_at(const char* from) const {
      const ByteBlock block = ByteBlock::load(from);
      return (block.equal_to('\r') | block.equal_to('\n') | block.equal_to(delimiter_)).top_bits();
    }
    static std::size_t index(char c) { return static_cast<unsigned char>(c); }
    char delimiter_;
    std::array<char, 256> of_{};
  };

  void put(char c) { text_[written_++] = c; }

  /// Moves what lies before a place, as it is.
  void move_until(std::size_t place) {
    const std::size_t size = place - read_;
    if (written_ != read_) std::memmove(text_.data() + written_, text_.data() + read_, size);
    written_ += size;
    read_ = place;
  }

  /// Moves what lies before a place inside quotes.
  void change_until(std::size_t place) {
    const std::size_t start = written_;
    move_until(place);
    inside_quotes_.change(text_.data() + start, written_ - start, text_.size() - start);
  }

  /// Takes what lies before the next quote or line feed outside quotes, and the mark itself.
  void take_plain(std::size_t mark) {
    // Of the fields in between only the first can have begun with a quote, and so be cut.
    if (quoted_field_ && read_ < mark) {
      const std::size_t end = text_.find(delimiter_, read_);
      const bool opens_next = end + 1 == mark && mark < text_.size() && text_[mark] == kQuote;
      if (end < mark && !opens_next) {
        move_until(end);
        finish_field();
        ++read_;
      }
    }
    if (mark == text_.size()) {
      move_until(mark);
    } else if (text_[mark] == '\n') {
      move_until(mark);
      ++read_;
      end_line();
    } else if (mark > read_ && text_[mark - 1] == delimiter_) {
      move_until(mark - 1);
      open_quotes(mark);
    } else {
      move_until(mark);
      quoted_field_ = quoted_field_ || field_is_empty();
      put(kQuote);
      ++read_;
    }
  }

  /// Takes what lies before the next mark inside quotes. The quoted part ends one character before
  /// the closing quote; that character and the quote are taken as if they stood outside.
  void take_quoted(std::size_t mark) {
    const bool closes = mark < text_.size() && text_[mark] == kQuote && mark > read_;
    change_until(closes ? mark - 1 : mark);
    if (!closes) return;
    const char last = text_[read_];
    if (last == delimiter_) {
      open_quotes(mark);
      return;
    }
    in_quotes_ = false;
    ++read_;
    if (last == '\n') {
      end_line();
    } else {
      put(last);
    }
    take_plain(mark);
  }

  /// A delimiter with a quote behind it.
  void open_quotes(std::size_t quote) {
    finish_field();
    put(kQuote);
    quoted_field_ = true;
    in_quotes_ = true;
    read_ = quote + 1;
  }

  /// A field that begins with a quote and does not end with one was cut by a delimiter that
  /// belongs to it.
  [[nodiscard]] char field_end() const {
    return quoted_field_ && text_[written_ - 1] != kQuote ? '|' : delimiter_;
  }

  void finish_field() {
    put(field_end());
    field_ = written_;
    quoted_field_ = false;
  }

  /// Moved as a whole, delimiters leave no other trace than being the last character.
  [[nodiscard]] bool field_is_empty() const {
    return written_ == starts_.back() || written_ == field_ || text_[written_ - 1] == delimiter_;
  }

  /// A line feed ends a record with the CR before it; a lone one is dropped.
  void end_line() {
    if (written_ == starts_.back() || text_[written_ - 1] != '\r') return;
    put('\n');
    starts_.push_back(written_);
    if (begins_ != nullptr) begins_->push_back(read_);
    quoted_field_ = false;
  }

  void finish_text() {
    if (written_ > 0 || starts_.size() > 1) {
      const char end = field_end();
      text_.resize(written_);
      text_ += end;
    } else {
      text_.clear();
    }
    starts_.push_back(text_.size() + kCrLf.size());
  }

  std::string& text_;
  char delimiter_;
  PlaceFinder<2> marks_;
  QuotedCharacters inside_quotes_;
  std::size_t read_ = 0;
  std::size_t written_ = 0;
  bool in_quotes_ = false;
  std::size_t field_ = 0;      // behind the field that was finished last
  bool quoted_field_ = false;  // the field being written begins with a quote
  std::vector<std::size_t> starts_ = {0};
  std::vector<std::size_t>* begins_;
};

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

RecordTable build_records(std::string text, char delimiter, const OnStep& on_step,
                          std::size_t expected) {
  auto records = std::make_shared<std::string>(std::move(text));
  std::vector<std::size_t> starts = RecordBuilder(*records, delimiter).build(on_step, expected);
  return {std::move(records), std::move(starts)};
}

SourceLines lines_of_records(std::string text, char delimiter, std::size_t records) {
  const LineBreaks breaks = count_line_breaks(text);
  if (breaks.pairs + 1 == records && breaks.only_pairs()) return {};
  remove_doubled_quotes(text);
  std::string built = text;
  std::vector<std::size_t> begins;
  RecordBuilder(built, delimiter, &begins).build([](auto, auto) {});
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
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (records[i].size() > kMostDelimiters) {
      // Padded as far as this record, should the count overflow.
      records.pad(header, i);
      delimiters_of(records[i], delimiter);
    }
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

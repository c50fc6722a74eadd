#include "sources/record_builder.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

#include "sources/regular_records.h"
#include "text/byte_block.h"
#include "text/place_finder.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr char kQuote = '"';
constexpr std::size_t kStepBytes = 64UL * 1024;

/// Builds the records inside the buffer that holds the text. Records that are not regular are gone
/// through from mark to mark: only quotes and line feeds need a look, and only a lone line feed
/// goes. Up to the first one everything stays where it is, and behind it what is written never
/// overtakes what is read.
class RecordBuilder {
 public:
  RecordBuilder(std::string& text, char delimiter, std::vector<std::size_t>* begins)
      : text_(text),
        delimiter_(delimiter),
        marks_(text, kQuote, '\n'),
        regular_(text, delimiter),
        inside_quotes_(delimiter),
        begins_(begins) {}

  std::vector<std::size_t> build(const OnStep& on_step, std::size_t expected) {
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
      if (read_ == start_ && take_regular_records()) continue;
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

  /// Takes the records that stay as they are, up to the first one that may not; false when that is
  /// the next one.
  bool take_regular_records() {
    ends_.clear();
    regular_.find(read_, kStepBytes, ends_);
    if (ends_.empty()) return false;
    const std::size_t moved = read_ - written_;
    for (const std::size_t end : ends_) starts_.push_back(end - moved);
    if (begins_ != nullptr) begins_->insert(begins_->end(), ends_.begin(), ends_.end());
    move_until(ends_.back());
    start_ = read_;
    marks_.go_to(read_);
    return true;
  }

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
    start_ = read_;
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
  RegularRecords regular_;
  std::vector<std::size_t> ends_;  // of regular records
  QuotedCharacters inside_quotes_;
  std::size_t read_ = 0;
  std::size_t written_ = 0;
  std::size_t start_ = 0;  // where the record being built began in the text as it was
  bool in_quotes_ = false;
  std::size_t field_ = 0;      // behind the field that was finished last
  bool quoted_field_ = false;  // the field being written begins with a quote
  std::vector<std::size_t> starts_ = {0};
  std::vector<std::size_t>* begins_;
};

}  // namespace

std::vector<std::size_t> build_records_in(std::string& text, char delimiter, const OnStep& on_step,
                                          std::size_t expected, std::vector<std::size_t>* begins) {
  return RecordBuilder(text, delimiter, begins).build(on_step, expected);
}

}  // namespace quenda

#include "sources/table_conversion.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

#include "sources/character_conversion.h"
#include "sources/kept_breaks.h"
#include "sources/text_writer.h"
#include "sources/unicode_text.h"
#include "text/byte_block.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr char kQuote = '"';
constexpr std::size_t kStepBytes = 1024UL * 1024;

/// Copies a text up to the next byte that the conversion has to look at: control characters,
/// quotes, bytes from 0x80 up if asked for, and one more character.
class PlainCopier {
 public:
  PlainCopier(bool high, char other)
      : high_(ByteBlock::filled_with(high ? '\x80' : '\0')),
        other_(ByteBlock::filled_with(other)) {}

  /// Copies from `from` to `to`, at most `size` characters, a block at a time: there has to be room
  /// for a block more. The result is how many were plain.
  std::size_t copy(const char* from, char* to, std::size_t size) const {
    std::size_t at = 0;
    for (; size - at >= ByteBlock::kSize; at += ByteBlock::kSize) {
      const std::uint32_t special = copy_block(from + at, to + at);
      if (special != 0) return at + static_cast<std::size_t>(std::countr_zero(special));
    }
    std::array<char, ByteBlock::kSize> last{};
    std::copy(from + at, from + size, last.begin());
    // The zeros behind the end count as special.
    const std::uint32_t special = copy_block(last.data(), to + at);
    return std::min(size, at + static_cast<std::size_t>(std::countr_zero(special)));
  }

 private:
  /// A bit for each byte to be looked at.
  std::uint32_t copy_block(const char* from, char* to) const {
    const ByteBlock block = ByteBlock::load(from);
    block.store(to);
    return (block.up_to('\x1F') | block.equal_to(kQuote) | block.equal_to(other_) | (block & high_))
        .top_bits();
  }

  ByteBlock high_;
  ByteBlock other_;
};

/// Reads the text once and writes it anew.
class TableConverter {
 public:
  TableConverter(std::string_view text, FileEncoding encoding, char delimiter,
                 std::size_t first_line)
      : text_(text),
        encoding_(encoding),
        delimiter_(delimiter),
        outside_(encoding != FileEncoding::kWindows1252, kQuote),
        inside_(encoding != FileEncoding::kWindows1252, delimiter),
        line_(first_line) {
    table_.delimiter = delimiter;
    out_.reserve(text.size() + text.size() / 8 + 2);
    table_.lines.begin_record(0, line_);
  }

  ConvertedTable convert(const std::function<void()>& on_step) {
    std::size_t next_step = kStepBytes;
    while (at_ < text_.size() || reopen()) {
      if (at_ >= next_step) {
        on_step();
        next_step = at_ + kStepBytes;
      }
      take_run();
      if (at_ < text_.size()) take_special();
    }
    if (field_start_ != at_) out_.put(kCrLf);
    table_.text = out_.take();
    table_.records = record_ + 1;
    return std::move(table_);
  }

 private:
  /// What to go back to when a quote turns out never to be closed.
  struct Mark {
    std::size_t at, written, record, line, steps, changed, lost, changed_in, lost_in;
  };

  void take_run() {
    constexpr std::size_t kRun = 4096;
    const std::size_t size = std::min(text_.size() - at_, kRun);
    char* const to = out_.room(kRun + ByteBlock::kSize);
    const std::size_t plain = (in_quotes_ ? inside_ : outside_).copy(text_.data() + at_, to, size);
    out_.advance(plain);
    at_ += plain;
  }

  void take_special() {
    const char c = text_[at_];
    const auto byte = static_cast<unsigned char>(c);
    if (c == kQuote) {
      take_quote();
    } else if (c == delimiter_) {
      ++at_;
      out_.put(in_quotes_ ? '|' : c);
      if (!in_quotes_) field_start_ = at_;
    } else if (c == '\r' || c == '\n') {
      take_line_break();
    } else if (byte >= 0x80 && encoding_ != FileEncoding::kWindows1252) {
      take_character();
    } else {
      // Tabs count where they do not separate; other control characters mean nothing.
      if (c == '\t' || byte >= ' ') out_.put(c);
      ++at_;
    }
  }

  [[nodiscard]] bool at_field_start() const {
    std::size_t at = at_;
    while (at > field_start_ && text_[at - 1] == ' ') --at;
    return at == field_start_ || text_[at - 1] == delimiter_;
  }

  void take_quote() {
    const bool doubled = at_ + 1 < text_.size() && text_[at_ + 1] == kQuote;
    if (in_quotes_ && doubled) {
      at_ += 2;
      return;
    }
    if (in_quotes_) {
      in_quotes_ = false;
    } else if (!quotes_are_text_ && at_field_start()) {
      in_quotes_ = true;
      opened_ = {at_,
                 out_.size(),
                 record_,
                 line_,
                 table_.lines.steps(),
                 table_.losses.changed,
                 table_.losses.lost,
                 table_.losses.changed_in.size(),
                 table_.losses.lost_in.size()};
    }
    // Quotes themselves never reach an entry.
    ++at_;
  }

  /// A quote that is open at the end was none: everything behind it is read again, as records, and
  /// quotes mean nothing from there on. True when there is something to read again.
  bool reopen() {
    if (!in_quotes_) return false;
    in_quotes_ = false;
    quotes_are_text_ = true;
    at_ = opened_.at;
    record_ = opened_.record;
    line_ = opened_.line;
    out_.cut(opened_.written);
    table_.lines.cut_steps(opened_.steps);
    table_.losses.changed = opened_.changed;
    table_.losses.lost = opened_.lost;
    table_.losses.changed_in.resize(opened_.changed_in);
    table_.losses.lost_in.resize(opened_.lost_in);
    line_decided_until_ = 0;
    return true;
  }

  void take_line_break() {
    const bool pair = text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
    ++line_;
    if (in_quotes_ && record_ == 0) {
      out_.put(' ');  // column names are looked for as one line
    } else if (in_quotes_) {
      if (text_[at_] == '\r') out_.put(kKeptCr);
      if (pair || text_[at_] == '\n') out_.put(kKeptLf);
    } else {
      out_.put(kCrLf);
      table_.lines.begin_record(++record_, line_);
    }
    at_ += pair ? 2 : 1;
    if (!in_quotes_) field_start_ = at_;
    characters_.begin();
  }

  void take_character() {
    if (encoding_ == FileEncoding::kMixed) decide_line();
    const DecodedCharacter character =
        line_is_bytes_ ? DecodedCharacter{} : decode_utf8(text_, at_);
    const bool as_byte =
        character.size == 0 || (line_has_both_ && !is_likely_letter(character.code_point));
    if (!as_byte) {
      put_character(character.code_point);
      at_ += character.size;
    } else if (encoding_ == FileEncoding::kMixed && (line_is_bytes_ || line_has_both_)) {
      out_.put(text_[at_++]);
    } else {
      out_.put('?');
      table_.losses.count_lost(record_);
      ++at_;
      while (at_ < text_.size() && (static_cast<unsigned char>(text_[at_]) & 0xC0U) == 0x80U) ++at_;
    }
  }

  /// Whether the line at hand is UTF-8, Windows-1252, or, put together from two files, both.
  void decide_line() {
    if (at_ < line_decided_until_) return;
    const std::size_t end = std::min(text_.find_first_of(kCrLf, at_), text_.size());
    line_decided_until_ = end;
    const std::string_view line = text_.substr(at_, end - at_);
    bool has_letters = false;
    bool has_bytes = false;
    for (std::size_t at = 0; at < line.size(); at = skip_ascii(line, at)) {
      const DecodedCharacter character = decode_utf8(line, at);
      has_bytes = has_bytes || character.size == 0;
      has_letters = has_letters || (character.size > 0 && is_likely_letter(character.code_point));
      at += std::max<std::size_t>(character.size, 1);
    }
    line_is_bytes_ = has_bytes && !has_letters;
    line_has_both_ = has_bytes && has_letters;
  }

  void put_character(char32_t character) {
    const char last = out_.empty() ? '\0' : out_.back();
    const auto written = characters_.convert(character, last, record_, table_.losses);
    if (written.replaces_last) {
      out_.back() = written.text[0];
      return;
    }
    // Nearest letters must not split the field.
    const bool splits = written.text.size() == 1 && written.text[0] == delimiter_;
    out_.put(splits ? "|" : written.text);
  }

  std::string_view text_;
  FileEncoding encoding_;
  char delimiter_;
  PlainCopier outside_;
  PlainCopier inside_;
  std::size_t at_ = 0;
  std::size_t field_start_ = 0;  // at least the beginning of the record
  std::size_t record_ = 0;
  std::size_t line_;
  bool in_quotes_ = false;
  bool quotes_are_text_ = false;
  Mark opened_{};
  std::size_t line_decided_until_ = 0;
  bool line_is_bytes_ = false;
  bool line_has_both_ = false;
  CharacterConversion characters_;
  TextWriter out_;
  ConvertedTable table_;
};

/// The text behind the mark and the line "sep=".
std::string_view table_part(std::string_view text, const FileFacts& facts) {
  if (!facts.is_utf16()) text.remove_prefix(mark_length(text));
  if (!facts.sep_line) return text;
  const auto end = text.find_first_of(kCrLf);
  if (end == text.npos) return {};
  return text.substr(end + (text.substr(end).starts_with(kCrLf) ? 2 : 1));
}

std::size_t trailing_delimiters(std::string_view record, char delimiter) {
  std::size_t count = 0;
  while (count < record.size() && record[record.size() - 1 - count] == delimiter) ++count;
  return count;
}

/// Calls `use` with each record of a converted text, without its line end.
template <class Use>
void each_record(std::string_view text, Use use) {
  std::string_view record;
  while (next_part(text, kCrLf, record)) use(record);
}

/// Takes columns off the end that no record has anything in.
void drop_empty_columns(ConvertedTable& table) {
  const std::string_view text = table.text;
  const char delimiter = table.delimiter;
  const std::string_view header = text.substr(0, text.find(kCrLf));
  const std::size_t columns = count_of(header, delimiter);
  std::size_t kept = columns - trailing_delimiters(header, delimiter);
  const std::string_view rest = text.substr(std::min(text.size(), header.size() + kCrLf.size()));
  const std::string_view second = rest.substr(0, rest.find(kCrLf));
  if (kept == columns && count_of(second, delimiter) <= columns) return;
  each_record(text, [&](std::string_view record) {
    const std::size_t own = count_of(record, delimiter);
    if (own > kept) kept = std::max(kept, own - trailing_delimiters(record, delimiter));
  });
  std::size_t written = 0;
  std::string& all = table.text;
  each_record(text, [&](std::string_view record) {
    const std::size_t own = count_of(record, delimiter);
    const std::size_t size = record.size() - (own > kept ? own - kept : 0);
    const auto from = static_cast<std::size_t>(record.data() - text.data());
    const bool last = from + record.size() == text.size();
    std::memmove(all.data() + written, all.data() + from, size);
    written += size;
    if (last) return;
    std::memcpy(all.data() + written, kCrLf.data(), kCrLf.size());
    written += kCrLf.size();
  });
  all.resize(written);
}

}  // namespace

ConvertedTable convert_table(std::string_view bytes, const FileFacts& facts, char delimiter,
                             const std::function<void()>& on_step) {
  std::string decoded;
  if (facts.is_utf16()) {
    decoded =
        utf16_to_utf8(bytes.substr(mark_length(bytes)), facts.encoding == FileEncoding::kUtf16Big);
    bytes = decoded;
  }
  const FileEncoding encoding = facts.is_utf16() ? FileEncoding::kUtf8 : facts.encoding;
  ConvertedTable table =
      TableConverter(table_part(bytes, facts), encoding, delimiter, facts.sep_line ? 2 : 1)
          .convert(on_step);
  drop_empty_columns(table);
  return table;
}

}  // namespace quenda

#include "platform/tail_writing.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <string>
#include <vector>

#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kBlock = 1U << 20U;

bool holds(const TailFile& file, std::string_view text) {
  if (file.size() != text.size()) return false;
  std::vector<char> block(std::min(kBlock, text.size()));
  for (std::size_t at = 0; at < text.size(); at += block.size()) {
    const std::string_view expected = text.substr(at, block.size());
    const std::size_t got = file.read_at(at, {block.data(), expected.size()});
    if (got != expected.size() || std::memcmp(block.data(), expected.data(), got) != 0)
      return false;
  }
  return true;
}

/// Gathers short texts into large blocks on their way into the file.
class BlockWriter {
 public:
  BlockWriter(TailFile& file, std::uint64_t position) : file_(file), position_(position) {}
  void put(std::string_view text) {
    if (block_.size() + text.size() > kBlock) done();
    if (text.size() >= kBlock) {
      write(text);
    } else {
      if (block_.empty()) block_.reserve(kBlock);
      block_.append(text);
    }
  }
  void put_blanks(std::uint64_t count) {
    static constexpr std::string_view kBlanks = "                                ";
    for (; count > 0; count -= std::min<std::uint64_t>(count, kBlanks.size())) {
      put(kBlanks.substr(0, count));
    }
  }
  void done() {
    write(block_);
    block_.clear();
  }

 private:
  void write(std::string_view text) {
    if (text.empty()) return;
    file_.write_at(position_, text);
    position_ += text.size();
  }

  TailFile& file_;
  std::uint64_t position_;
  std::string block_;
};

std::uint64_t size_of(const TailChange& change) {
  return change.tail == nullptr ? 0 : change.tail->size();
}

/// Where the first line begins at or behind `from`; the end when none does.
std::uint64_t line_start(const TailText& tail, std::uint64_t from) {
  if (from == 0) return 0;
  const std::uint64_t end = tail.size();
  std::uint64_t at = from - 1;
  bool found = false;
  tail.tell(from - 1, end, [&](std::string_view text) {
    if (found) return;
    const std::size_t line_end = text.find('\n');
    found = line_end != text.npos;
    at += found ? line_end + 1 : text.size();
  });
  return std::min(at, end);
}

/// The line before the lines that stand twice for a while. It is no entry of any kind, so whoever
/// reads a file that was left with it stops there, and shows it.
constexpr std::string_view kInterrupted =
    u8"\r\n*** Beim Schreiben unterbrochen. Vor dieser Zeile können Zeilen fehlen, unleserlich "
    u8"oder "
    u8"leer sein; dahinter stehen alle, die fehlen. ***\r\n"_de;

/// One replacement on its way. What is overwritten stands twice while that lasts, and whoever is
/// ended in between leaves no line that is made of two:
/// 1. Behind the old end comes what stays there, then once more the new lines that are going to
///    overwrite old ones. This also takes the space that the rest needs.
/// 2. The old lines become unreadable, each by one byte, and are then blanked.
/// 3. The new lines take their place; one that is torn ends in blanks.
/// 4. What is behind the new end goes.
class Replacement {
 public:
  Replacement(TailFile& file, const TailChange& change)
      : file_(file),
        change_(change),
        old_(change.old_text),
        keep_(change.keep),
        new_end_(change.keep + size_of(change)) {}

  void run() {
    const bool only_cut = new_end_ == keep_;
    if (keep_ == old_.size() || only_cut) {
      overwriting_ = keep_ < old_.size();
      write_tail(keep_, 0, new_end_ - keep_);
      if (only_cut) file_.cut(new_end_);
      file_.flush();
      return;
    }
    write_behind();
    file_.flush();
    overwriting_ = true;
    spoil();
    file_.flush();
    blank();
    file_.flush();
    write_tail(keep_, 0, in_place_);
    file_.flush();
    file_.cut(new_end_);
    file_.flush();
  }

  /// Undoes what has been done; the result says in words what the file holds then.
  [[nodiscard]] std::string put_back() {
    try {
      if (overwriting_) file_.write_at(keep_, old_.substr(keep_));
      overwriting_ = false;
      file_.cut(old_.size());
      file_.flush();
      return std::string(change_.texts.unchanged);
    } catch (const std::exception&) {
      return overwriting_ ? broken() : longer();
    }
  }

 private:
  void write_tail(std::uint64_t position, std::uint64_t from, std::uint64_t to) {
    BlockWriter writer(file_, position);
    put_tail(writer, from, to);
    writer.done();
  }

  void put_tail(BlockWriter& writer, std::uint64_t from, std::uint64_t to) const {
    if (from == to) return;
    change_.tail->tell(from, to, [&](std::string_view text) { writer.put(text); });
  }

  void write_behind() {
    const std::uint64_t end = new_end_ - keep_;
    const std::uint64_t replaced = old_.size() - keep_;
    // The gap before the first whole line is blank, and a line by itself: no entry either.
    constexpr std::uint64_t kSmallestGap = 3;
    in_place_ = line_start(*change_.tail, replaced + kSmallestGap);
    BlockWriter writer(file_, old_.size());
    if (end > replaced) {
      const std::uint64_t gap = in_place_ - replaced;
      writer.put_blanks(gap < 2 ? 0 : gap - 2);
      writer.put(kCrLf.substr(kCrLf.size() - std::min<std::uint64_t>(gap, kCrLf.size())));
      put_tail(writer, in_place_, end);
    }
    writer.put(kInterrupted);
    writer.put(old_.substr(first_line(), keep_ - first_line()));
    put_tail(writer, 0, in_place_);
    writer.done();
  }

  void spoil() {
    if (change_.spoil == nullptr) return;
    std::uint64_t at = first_line();
    std::string lines;
    while (at < old_.size()) {
      const std::size_t line_end = old_.find('\n', at + kBlock);
      const std::uint64_t next = line_end == old_.npos ? old_.size() : line_end + 1;
      lines = old_.substr(at, next - at);
      change_.spoil(lines);
      const std::uint64_t kept = keep_ > at ? keep_ - at : 0;
      file_.write_at(at + kept, std::string_view(lines).substr(kept));
      at = next;
    }
  }

  /// All but the ends of the first and of the last line.
  void blank() {
    const std::size_t first_end = std::min(old_.find(kCrLf, keep_), old_.size());
    BlockWriter first(file_, keep_);
    first.put_blanks(first_end - keep_);
    first.done();
    const std::size_t end = old_.size() - (old_.ends_with(kCrLf) ? kCrLf.size() : 0);
    if (first_end >= end) return;
    BlockWriter rest(file_, first_end + kCrLf.size());
    rest.put_blanks(end - first_end - kCrLf.size());
    rest.done();
  }

  /// Where the line begins that the first changed byte belongs to.
  [[nodiscard]] std::uint64_t first_line() const {
    const std::size_t before = keep_ == 0 ? old_.npos : old_.rfind('\n', keep_ - 1);
    return before == old_.npos ? 0 : before + 1;
  }

  [[nodiscard]] std::string longer() const {
    return replace_all(change_.texts.longer, "%1", std::to_string(count_of(old_, '\n')));
  }

  [[nodiscard]] std::string broken() const {
    constexpr std::size_t kMostCharacters = 60;
    const std::size_t start = first_line();
    const std::string number = std::to_string(count_of(old_.substr(0, start), '\n') + 1);
    const std::string_view line =
        old_.substr(start, std::min(old_.find(kCrLf, start) - start, kMostCharacters));
    // The line last: it may hold "%1" itself.
    const std::string numbered = replace_all(change_.texts.damaged, "%1", number);
    const std::string text = replace_all(numbered, "%2", line);
    return new_end_ == keep_ ? text : concat(text, " ", change_.texts.rest);
  }

  TailFile& file_;
  const TailChange& change_;
  std::string_view old_;
  std::uint64_t keep_;
  std::uint64_t new_end_;
  std::uint64_t in_place_ = 0;  // how much of the tail overwrites old lines
  bool overwriting_ = false;
};

}  // namespace

ReplaceResult replace_tail_of(TailFile& file, const TailChange& change) {
  if (change.keep > change.old_text.size()) raise_fault(kFaultInvalidCall);
  if (change.keep + size_of(change) > kLargestFile) {
    throw RuntimeFault(kFaultOutOfMemory, change.texts.large);
  }
  if (!holds(file, change.old_text)) return ReplaceResult::kChangedMeanwhile;
  Replacement replacement(file, change);
  try {
    replacement.run();
  } catch (const std::exception&) {
    const int number = current_fault().number();
    throw RuntimeFault(number, replacement.put_back());
  }
  return ReplaceResult::kReplaced;
}

}  // namespace quenda

#include "book/book_change.h"

#include <algorithm>
#include <string>

namespace quenda {
namespace {

constexpr std::size_t kBlock = 1024UL * 1024;
/// Runs of the old text below this size are copied: to tell each by itself would cost more.
constexpr std::size_t kShortRun = 16UL * 1024;

/// Goes over the entries of a list from one on. `on_run(from, to, after)` is told of the runs whose
/// bytes stand in the old text, and of the entry behind them; `on_line(entry)` of each other entry
/// that is written. Both tell whether to go on.
template <class OnRun, class OnLine>
void walk(const BookList& list, std::size_t entry, OnRun on_run, OnLine on_line) {
  const std::size_t total = list.size();
  for (bool goes_on = true; goes_on && entry < total;) {
    const std::size_t first = entry;
    while (entry < total && list.plain(entry)) ++entry;
    if (entry > first) {
      goes_on = on_run(list.start(first), list.start(entry), entry);
    } else {
      goes_on = !list.written(entry) || on_line(entry);
      ++entry;
    }
  }
}

void append_line(std::string& text, const BookList& list, std::size_t entry) {
  if (list.is_new(entry)) {
    append_new_book_line(text, list.name_and_number(entry), list.contact(entry).address);
  } else {
    append_book_line(text, list.entry(entry));
  }
}

/// Gathers short texts into blocks, and tells a part of all.
class BlockTeller {
 public:
  /// Leaves out the first `skipped` bytes and tells `wanted` of those that follow.
  BlockTeller(std::uint64_t skipped, std::uint64_t wanted, const TailText::Take& take)
      : skipped_(skipped), wanted_(wanted), take_(take) {
    block_.reserve(std::min<std::uint64_t>(skipped + wanted, kBlock) + kShortRun);
  }

  [[nodiscard]] bool wants_more() const { return wanted_ > 0; }
  /// What is added to the block; to be followed by `added`.
  std::string& block() { return block_; }
  void added() {
    if (block_.size() >= kBlock || block_.size() >= skipped_ + wanted_) finish();
  }
  void add_run(std::string_view run) {
    if (run.size() < kShortRun) {
      block_.append(run);
      return added();
    }
    finish();
    tell(run);
  }
  void finish() {
    tell(block_);
    block_.clear();
  }

 private:
  void tell(std::string_view text) {
    const std::uint64_t left_out = std::min<std::uint64_t>(skipped_, text.size());
    skipped_ -= left_out;
    text = text.substr(left_out, wanted_);
    wanted_ -= text.size();
    if (!text.empty()) take_(text);
  }

  std::uint64_t skipped_;
  std::uint64_t wanted_;
  const TailText::Take& take_;
  std::string block_;
};

}  // namespace

BookChange::BookChange(std::string_view old_text, const BookList& list, const OnStep& on_step)
    : old_text_(old_text), list_(list) {
  Steps steps(on_step, list.size());
  bool in_front = true;  // up to here all bytes are those of the old text
  std::string line;
  const auto behind = [&](std::size_t next_entry) {
    if (in_front) {
      first_ = next_entry;
      first_start_ = keep_ = size_;
    }
    steps.row_done(next_entry);
    return true;
  };
  const auto on_run = [&](std::size_t from, std::size_t to, std::size_t after) {
    in_front = in_front && from == keep_;
    size_ += to - from;
    return behind(after);
  };
  const auto on_line = [&](std::size_t entry) {
    if (!in_front && list.is_new(entry)) {
      size_ += new_book_line_size(list.name_and_number(entry), list.contact(entry).address);
      return behind(entry + 1);
    }
    line.clear();
    append_line(line, list, entry);
    if (in_front) {
      const std::string_view old_rest = old_text.substr(keep_);
      const auto same =
          std::mismatch(line.begin(), line.end(), old_rest.begin(), old_rest.end()).first -
          line.begin();
      in_front = static_cast<std::size_t>(same) == line.size();
      keep_ += static_cast<std::uint64_t>(same);
    }
    size_ += line.size();
    return behind(entry + 1);
  };
  walk(list, 0, on_run, on_line);
}

void BookChange::tell(std::uint64_t from, std::uint64_t to, const Take& take) const {
  if (from >= to) return;
  BlockTeller teller(keep_ + from - first_start_, to - from, take);
  walk(
      list_, first_,
      [&](std::size_t start, std::size_t end, std::size_t /*after*/) {
        teller.add_run(old_text_.substr(start, end - start));
        return teller.wants_more();
      },
      [&](std::size_t entry) {
        append_line(teller.block(), list_, entry);
        teller.added();
        return teller.wants_more();
      });
  teller.finish();
}

}  // namespace quenda

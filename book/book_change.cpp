#include "book/book_change.h"

#include <algorithm>

namespace quenda {
namespace {

constexpr std::size_t kBlock = 4UL * 1024 * 1024;
/// Runs of the old text below this size are copied: a piece of their own would cost more.
constexpr std::size_t kShortRun = 16UL * 1024;

/// Puts the change together. As long as nothing differs from the old text, it only counts.
class ChangeBuilder {
 public:
  explicit ChangeBuilder(std::string_view old_text) : old_text_(old_text) {}

  /// Bytes that stand in the old text, from one place to another.
  void add_run(std::size_t from, std::size_t to) {
    if (in_front_ && from == change_.keep) {
      change_.keep = to;
      return;
    }
    in_front_ = false;
    const std::string_view run = old_text_.substr(from, to - from);
    if (run.size() < kShortRun) {
      block_with_room(run.size()).append(run);
    } else {
      finish_piece();
      change_.pieces.push_back(run);
    }
  }

  /// The line of an entry that is new.
  void add_new_line(std::string_view name_and_number, std::string_view address) {
    std::string& block = block_with_room(book_line_size(name_and_number, address));
    append_new_book_line(block, name_and_number, address);
    if (in_front_) compare_with_old(block);
  }

  void add_line(const BookEntry& entry) {
    std::string& block = block_with_room(book_line_size(entry));
    append_book_line(block, entry);
    if (in_front_) compare_with_old(block);
  }

  BookChange finish() {
    finish_piece();
    return std::move(change_);
  }

 private:
  /// The block being filled. Pieces point into it, so that it never grows beyond its room.
  std::string& block_with_room(std::size_t size) {
    std::vector<std::string>& blocks = change_.composed;
    if (blocks.empty() || blocks.back().capacity() - blocks.back().size() < size) {
      finish_piece();
      blocks.emplace_back().reserve(std::max(size, kBlock));
      piece_start_ = 0;
    }
    return blocks.back();
  }

  void finish_piece() {
    if (change_.composed.empty()) return;
    const std::string_view block = change_.composed.back();
    if (piece_start_ < block.size()) change_.pieces.push_back(block.substr(piece_start_));
    piece_start_ = block.size();
  }

  /// Takes back what stands in the old text at the same place.
  void compare_with_old(std::string& block) {
    const std::string_view old_rest = old_text_.substr(change_.keep);
    const auto differs =
        std::mismatch(block.begin(), block.end(), old_rest.begin(), old_rest.end()).first;
    change_.keep += static_cast<std::uint64_t>(differs - block.begin());
    in_front_ = differs == block.end();
    block.erase(block.begin(), differs);
  }

  std::string_view old_text_;
  BookChange change_;
  bool in_front_ = true;
  std::size_t piece_start_ = 0;
};

}  // namespace

BookChange compose_book(std::string_view old_text, const BookList& list, const OnStep& on_step) {
  ChangeBuilder change(old_text);
  const std::size_t total = list.size();
  Steps steps(on_step, total);
  for (std::size_t i = 0; i < total;) {
    const std::size_t first = i;
    for (; i < total && list.plain(i); ++i) steps.row_done(i + 1);
    if (i > first) {
      change.add_run(list.start(first), list.start(i));
      continue;
    }
    if (list.is_new(i)) {
      change.add_new_line(list.name_and_number(i), list.contact(i).address);
    } else if (list.written(i)) {
      change.add_line(list.entry(i));
    }
    steps.row_done(++i);
  }
  return change.finish();
}

}  // namespace quenda

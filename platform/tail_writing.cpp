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
  BlockWriter(TailFile& file, std::uint64_t position) : file_(file), position_(position) {
    block_.reserve(kBlock);
  }
  void put(std::string_view text) {
    if (block_.size() + text.size() > kBlock) done();
    if (text.size() >= kBlock) {
      write(text);
    } else {
      block_.append(text);
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

/// Writes the bytes from `from` to `to`, counted from the start of the new tail.
void write_range(TailFile& file, const TailChange& change, std::uint64_t from, std::uint64_t to) {
  BlockWriter writer(file, change.keep + from);
  for (std::string_view piece : change.pieces) {
    if (to == 0) break;
    const std::uint64_t skipped = std::min<std::uint64_t>(from, piece.size());
    const std::uint64_t end = std::min<std::uint64_t>(to, piece.size());
    if (skipped < end) writer.put(piece.substr(skipped, end - skipped));
    from -= skipped;
    to -= end;
  }
  writer.done();
}

std::uint64_t size_of(std::span<const std::string_view> pieces) {
  std::uint64_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  return size;
}

/// Puts the old content back after a fault, and says whether it stands again.
bool put_back(TailFile& file, const TailChange& change, bool overwritten) {
  try {
    if (overwritten) file.write_at(change.keep, change.old_text.substr(change.keep));
    file.cut(change.old_text.size());
    file.flush();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

ReplaceResult replace_tail_of(TailFile& file, const TailChange& change) {
  const std::uint64_t old_size = change.old_text.size();
  if (change.keep > old_size) raise_fault(kFaultInvalidCall);
  if (!holds(file, change.old_text)) return ReplaceResult::kChangedMeanwhile;

  const std::uint64_t added = size_of(change.pieces);
  const std::uint64_t replaced = std::min(old_size - change.keep, added);
  bool overwritten = false;
  try {
    if (added > replaced) {
      write_range(file, change, replaced, added);
      file.flush();
    }
    overwritten = replaced > 0;
    if (overwritten) write_range(file, change, 0, replaced);
    if (change.keep + added < old_size) {
      if (overwritten) file.flush();
      file.cut(change.keep + added);
      overwritten = true;
    }
    file.flush();
  } catch (const std::exception&) {
    const int number = current_fault().number();
    throw RuntimeFault(
        number, concat(change.name, put_back(file, change, overwritten) ? u8" ist unverändert."_de
                                                                        : u8" ist beschädigt."_de));
  }
  return ReplaceResult::kReplaced;
}

}  // namespace quenda

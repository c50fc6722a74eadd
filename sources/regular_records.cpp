#include "sources/regular_records.h"

#include <algorithm>
#include <bit>

namespace quenda {
namespace {

/// A bit for each bit that has an odd number of bits in it and below it.
constexpr std::uint64_t odd_up_to(std::uint64_t bits) {
  for (unsigned distance = 1; distance < 64; distance *= 2) bits ^= bits << distance;
  return bits;
}

/// The bits one place up, from one stretch of 64 into the next.
std::uint64_t behind(std::uint64_t bits, std::uint64_t& carried) {
  const std::uint64_t moved = bits << 1U | carried;
  carried = bits >> 63U;
  return moved;
}

}  // namespace

struct RegularRecords::Before {
  std::uint64_t inside = 0;   // all bits, where a quote is open
  std::uint64_t opening = 0;  // one bit each: the last byte is such a character
  std::uint64_t closing = 0;
  std::uint64_t cr = 0;
  std::uint64_t field_end = 1;  // a delimiter or a line break
};

RegularRecords::RegularRecords(std::string_view text, char delimiter)
    : text_(text), delimiter_(ByteBlock::filled_with(delimiter)) {}

RegularRecords::Marks RegularRecords::marks_of(const char* from) const {
  Marks marks;
  for (unsigned at = 0; at < kWindow; at += ByteBlock::kSize) {
    const ByteBlock block = ByteBlock::load(from + at);
    const auto add = [&](std::uint64_t& bits, ByteBlock matches) {
      bits |= std::uint64_t{matches.top_bits()} << at;
    };
    add(marks.quotes, block.equal_to('"'));
    add(marks.delimiters, block.equal_to(delimiter_));
    add(marks.cr, block.equal_to('\r'));
    add(marks.lf, block.equal_to('\n'));
  }
  return marks;
}

/// The places at which a record turns out not to be regular. Each lies in that record, so that
/// those that end in front of it are regular.
std::uint64_t RegularRecords::irregular(const Marks& marks, Before& before) {
  const std::uint64_t ends = marks.delimiters | marks.lf;
  const std::uint64_t inside = odd_up_to(marks.quotes) ^ before.inside;
  before.inside = std::uint64_t{0} - (inside >> 63U);
  const std::uint64_t opening = marks.quotes & inside;
  const std::uint64_t closing = marks.quotes & ~inside;
  const std::uint64_t behind_opening = behind(opening, before.opening);
  const std::uint64_t behind_closing = behind(closing, before.closing);
  const std::uint64_t behind_end = behind(ends, before.field_end);
  const std::uint64_t broken_line = behind(marks.cr, before.cr) ^ marks.lf;
  return (opening & ~behind_end) | (behind_closing & ~(marks.delimiters | marks.cr)) |
         (behind_opening & closing) | (inside & (ends | marks.cr)) | broken_line;
}

void RegularRecords::find(std::size_t from, std::size_t bytes,
                          std::vector<std::size_t>& ends) const {
  Before before;
  const std::size_t until = bytes < text_.size() - from ? from + bytes : text_.size();
  for (std::size_t at = from; at < until && text_.size() - at >= kWindow; at += kWindow) {
    const Marks marks = marks_of(text_.data() + at);
    const std::uint64_t wrong = irregular(marks, before);
    // The bits below the first wrong one; all, where there is none.
    std::uint64_t found = marks.lf & (wrong == 0 ? ~std::uint64_t{0} : (wrong & -wrong) - 1);
    for (; found != 0; found &= found - 1) {
      ends.push_back(at + static_cast<std::size_t>(std::countr_zero(found)) + 1);
    }
    if (wrong != 0) return;
  }
}

}  // namespace quenda

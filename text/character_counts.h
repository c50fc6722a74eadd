#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "text/byte_block.h"

namespace quenda {

/// Counts the bytes that comparisons of blocks have marked. A byte of its own can hold only so
/// many, so `settle` has to be called after every `kMostBlocks` at the latest, and at the end.
class MatchCount {
 public:
  static constexpr std::size_t kMostBlocks = 255;

  void add(ByteBlock matches) { bytes_ = bytes_.minus(matches); }
  void settle() {
    total_ += bytes_.sum();
    bytes_ = ByteBlock::filled_with('\0');
  }
  [[nodiscard]] std::size_t total() const { return total_; }

 private:
  ByteBlock bytes_ = ByteBlock::filled_with('\0');
  std::size_t total_ = 0;
};

/// How often each of the characters stands in a text, all of them counted in one pass.
template <std::same_as<char>... Characters>
std::array<std::size_t, sizeof...(Characters)> count_each(std::string_view text,
                                                          Characters... characters) {
  constexpr std::size_t kSize = ByteBlock::kSize;
  const std::array wanted = {characters...};
  const std::array patterns = {ByteBlock::filled_with(characters)...};
  std::array<MatchCount, sizeof...(Characters)> matches;
  std::size_t at = 0;
  while (text.size() - at >= kSize) {
    const std::size_t blocks = std::min((text.size() - at) / kSize, MatchCount::kMostBlocks);
    for (const std::size_t end = at + blocks * kSize; at < end; at += kSize) {
      const ByteBlock block = ByteBlock::load(text.data() + at);
      // Not a loop, so that the compiler keeps counts and patterns in registers.
      [&]<std::size_t... I>(std::index_sequence<I...>) {
        (matches[I].add(block.equal_to(patterns[I])), ...);
      }
      (std::make_index_sequence<sizeof...(Characters)>());
    }
    for (MatchCount& count : matches) count.settle();
  }
  std::array<std::size_t, sizeof...(Characters)> counts{};
  const std::string_view rest = text.substr(at);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    counts[i] = matches[i].total();
    if (at == 0) {
      counts[i] += static_cast<std::size_t>(std::count(rest.begin(), rest.end(), wanted[i]));
    } else if (!rest.empty()) {
      // The last sixteen bytes, without those that have been counted already.
      const ByteBlock block = ByteBlock::load(text.data() + (text.size() - kSize));
      const std::uint32_t found = block.equal_to(patterns[i]).top_bits();
      counts[i] += static_cast<std::size_t>(std::popcount(found >> (kSize - rest.size())));
    }
  }
  return counts;
}

}  // namespace quenda

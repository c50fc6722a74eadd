#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define QUENDA_SSE2 1
#endif

namespace quenda {

/// Finds the places of some characters in a text, from the front to the back, sixteen bytes at a
/// time: next to no time is spent on what lies between. The text may change in front of the place
/// found last.
template <std::size_t kCharacters>
class PlaceFinder {
 public:
  template <std::same_as<char>... Characters>
  explicit PlaceFinder(std::string_view text, Characters... characters)
      : text_(text), patterns_{pattern(characters)...} {}

  /// The next place of one of the characters; the size of the text when there is none left.
  std::size_t next() {
    while (found_ == 0) {
      if (block_ >= text_.size()) return text_.size();
      found_ = look_at(block_);
      block_ += kBlock;
    }
    const auto place = static_cast<std::size_t>(std::countr_zero(found_));
    found_ &= found_ - 1;
    return block_ - kBlock + place;
  }

 private:
  static constexpr std::size_t kBlock = 16;
  /// A character in all places of a block.
  using Pattern = std::array<char, kBlock>;

  static Pattern pattern(char character) {
    Pattern result{};
    result.fill(character);
    return result;
  }

  /// One bit for each of the sixteen bytes from a place on that is one of the characters.
  [[nodiscard]] std::uint32_t look_at(std::size_t start) const {
    if (text_.size() - start >= kBlock) return matches(text_.data() + start);
    char last[kBlock] = {};
    const std::size_t left = text_.size() - start;
    std::memcpy(last, text_.data() + start, left);
    return matches(last) & ((1U << left) - 1);
  }

#ifdef QUENDA_SSE2
  static __m128i load(const char* block) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(block));
  }
  [[nodiscard]] std::uint32_t matches(const char* block) const {
    const __m128i bytes = load(block);
    // Not a loop, so that the compiler keeps the patterns in registers.
    const auto hits = [&]<std::size_t... I>(std::index_sequence<I...>) {
      __m128i any = _mm_setzero_si128();
      ((any = _mm_or_si128(any, _mm_cmpeq_epi8(bytes, load(patterns_[I].data())))), ...);
      return any;
    }
    (std::make_index_sequence<kCharacters>());
    return static_cast<std::uint32_t>(_mm_movemask_epi8(hits));
  }
#else
  [[nodiscard]] std::uint32_t matches(const char* block) const {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
      for (const Pattern& pattern : patterns_) {
        if (block[i] == pattern[i]) bits |= 1U << i;
      }
    }
    return bits;
  }
#endif

  std::string_view text_;
  std::array<Pattern, kCharacters> patterns_;
  std::size_t block_ = 0;    // where the block to be looked at next begins
  std::uint32_t found_ = 0;  // places of the block before it that have not been returned
};

template <std::same_as<char>... Characters>
PlaceFinder(std::string_view, Characters...) -> PlaceFinder<sizeof...(Characters)>;

}  // namespace quenda

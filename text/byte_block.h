#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define QUENDA_SSE2 1
#endif

namespace quenda {

/// Sixteen bytes that are looked at together. This is the only file with instructions of the
/// processor in it; where there are none, plain loops do the same.
class ByteBlock {
 public:
  static constexpr std::size_t kSize = 16;

  /// The sixteen bytes from there on.
  static ByteBlock load(const char* from);
  /// Fewer bytes, with zeros behind them; not for where time counts.
  static ByteBlock load_part(const char* from, std::size_t count);
  static ByteBlock filled_with(char c);
  void store(char* to) const;

  /// A block that has bit 7 set in the bytes that hold the character, and no others.
  [[nodiscard]] ByteBlock equal_to(char c) const { return equal_to(filled_with(c)); }
  [[nodiscard]] ByteBlock equal_to(ByteBlock other) const;
  /// The same for bytes that are not above the character, as codes from 0 to 255.
  [[nodiscard]] ByteBlock up_to(char c) const;
  /// How much each byte is above the character, as codes from 0 to 255; 0 where it is not.
  [[nodiscard]] ByteBlock above(char c) const;
  ByteBlock operator|(ByteBlock other) const;
  ByteBlock operator&(ByteBlock other) const;
  /// The bits of this block that the other one lacks.
  [[nodiscard]] ByteBlock without(ByteBlock other) const;

  /// Each byte less the other's, as codes from 0 to 255 that go on at 255 below 0.
  [[nodiscard]] ByteBlock minus(ByteBlock other) const;
  /// All codes together.
  [[nodiscard]] std::size_t sum() const;

  /// Bit 7 of each byte, the first byte's as the lowest bit.
  [[nodiscard]] std::uint32_t top_bits() const;

 private:
#ifdef QUENDA_SSE2
  __m128i bytes_;
  explicit ByteBlock(__m128i bytes) : bytes_(bytes) {}
#else
  std::array<unsigned char, kSize> bytes_{};
  ByteBlock() = default;
  /// Each byte from those of the two blocks at its place.
  template <class Combine>
  static ByteBlock combined(ByteBlock a, ByteBlock b, Combine combine) {
    ByteBlock result;
    for (std::size_t i = 0; i < kSize; ++i) {
      result.bytes_[i] = static_cast<unsigned char>(combine(a.bytes_[i], b.bytes_[i]));
    }
    return result;
  }
#endif
};

#ifdef QUENDA_SSE2
inline ByteBlock ByteBlock::load(const char* from) {
  return ByteBlock(_mm_loadu_si128(reinterpret_cast<const __m128i*>(from)));
}
inline ByteBlock ByteBlock::filled_with(char c) { return ByteBlock(_mm_set1_epi8(c)); }
inline void ByteBlock::store(char* to) const {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(to), bytes_);
}
inline ByteBlock ByteBlock::equal_to(ByteBlock other) const {
  return ByteBlock(_mm_cmpeq_epi8(bytes_, other.bytes_));
}
inline ByteBlock ByteBlock::up_to(char c) const {
  return ByteBlock(_mm_cmpeq_epi8(_mm_min_epu8(bytes_, _mm_set1_epi8(c)), bytes_));
}
inline ByteBlock ByteBlock::above(char c) const {
  return ByteBlock(_mm_subs_epu8(bytes_, _mm_set1_epi8(c)));
}
inline ByteBlock ByteBlock::operator|(ByteBlock other) const {
  return ByteBlock(_mm_or_si128(bytes_, other.bytes_));
}
inline ByteBlock ByteBlock::operator&(ByteBlock other) const {
  return ByteBlock(_mm_and_si128(bytes_, other.bytes_));
}
inline ByteBlock ByteBlock::without(ByteBlock other) const {
  return ByteBlock(_mm_andnot_si128(other.bytes_, bytes_));
}
inline ByteBlock ByteBlock::minus(ByteBlock other) const {
  return ByteBlock(_mm_sub_epi8(bytes_, other.bytes_));
}
inline std::size_t ByteBlock::sum() const {
  const __m128i halves = _mm_sad_epu8(bytes_, _mm_setzero_si128());
  const int low = _mm_cvtsi128_si32(halves);
  const int high = _mm_cvtsi128_si32(_mm_unpackhi_epi64(halves, halves));
  return static_cast<std::size_t>(low) + static_cast<std::size_t>(high);
}
inline std::uint32_t ByteBlock::top_bits() const {
  return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes_));
}
#else
inline ByteBlock ByteBlock::load(const char* from) {
  ByteBlock result;
  std::memcpy(result.bytes_.data(), from, kSize);
  return result;
}
inline ByteBlock ByteBlock::filled_with(char c) {
  ByteBlock result;
  result.bytes_.fill(static_cast<unsigned char>(c));
  return result;
}
inline void ByteBlock::store(char* to) const { std::memcpy(to, bytes_.data(), kSize); }
inline ByteBlock ByteBlock::equal_to(ByteBlock other) const {
  return combined(*this, other, [](unsigned a, unsigned b) { return a == b ? 0xFFU : 0U; });
}
inline ByteBlock ByteBlock::up_to(char c) const {
  return combined(*this, filled_with(c),
                  [](unsigned a, unsigned b) { return a <= b ? 0xFFU : 0U; });
}
inline ByteBlock ByteBlock::above(char c) const {
  return combined(*this, filled_with(c), [](unsigned a, unsigned b) { return a > b ? a - b : 0U; });
}
inline ByteBlock ByteBlock::operator|(ByteBlock other) const {
  return combined(*this, other, [](unsigned a, unsigned b) { return a | b; });
}
inline ByteBlock ByteBlock::operator&(ByteBlock other) const {
  return combined(*this, other, [](unsigned a, unsigned b) { return a & b; });
}
inline ByteBlock ByteBlock::without(ByteBlock other) const {
  return combined(*this, other, [](unsigned a, unsigned b) { return a & ~b; });
}
inline ByteBlock ByteBlock::minus(ByteBlock other) const {
  return combined(*this, other, [](unsigned a, unsigned b) { return a - b; });
}
inline std::size_t ByteBlock::sum() const {
  std::size_t sum = 0;
  for (const unsigned char byte : bytes_) sum += byte;
  return sum;
}
inline std::uint32_t ByteBlock::top_bits() const {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < kSize; ++i) bits |= (std::uint32_t{bytes_[i]} >> 7U) << i;
  return bits;
}
#endif

}  // namespace quenda

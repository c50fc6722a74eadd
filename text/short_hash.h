#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace quenda {

/// A quick hash of a text, good enough to tell rows apart in an index. It is for the memory only:
/// the next version may have another one.
inline std::uint32_t short_hash_of(std::string_view text) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  std::uint64_t hash = text.size() * kFactor;
  const auto mix = [&](std::uint64_t word) {
    hash = (hash ^ word) * kFactor;
    hash ^= hash >> 29U;
  };
  const auto mix_word_at = [&](std::size_t at) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, kWord);
    mix(word);
  };
  if (text.size() >= kWord) {
    // The last word overlaps the one before it, which costs less than a shorter one.
    const std::size_t last = text.size() - kWord;
    for (std::size_t at = 0; at < last; at += kWord) mix_word_at(at);
    mix_word_at(last);
  } else {
    std::uint64_t word = 0;
    for (const char c : text) word = word << 8U | static_cast<unsigned char>(c);
    mix(word);
  }
  return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

}  // namespace quenda

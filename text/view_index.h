#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace quenda {

/// A quick hash of a text, good enough to tell rows apart in an index.
inline std::uint64_t hash_of(std::string_view text) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
  std::uint64_t hash = text.size() * kFactor;
  const char* at = text.data();
  std::size_t left = text.size();
  const auto mix = [&](std::uint64_t word) {
    hash = (hash ^ word) * kFactor;
    hash ^= hash >> 29U;
  };
  for (; left >= sizeof(std::uint64_t); left -= sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    mix(word);
    at += sizeof word;
  }
  if (left > 0) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, left);
    mix(word);
  }
  return hash ^ (hash >> 32U);
}

/// Finds rows by a text. It stores row numbers only; the text of a row is asked from the caller, so
/// that a million keys cost 8 bytes each and no copy. Row numbers go up to 2^32 - 2.
class ViewIndex {
 public:
  /// Room for that many rows; more make the index grow.
  explicit ViewIndex(std::size_t rows = 0) { resize(rows); }

  static constexpr std::uint32_t kNone = 0xFFFFFFFFU;

  /// The row stored under the key; when there is none, `row` is stored and kNone returned.
  /// `key_of(row)` gives the text of a stored row.
  template <class KeyOf>
  std::uint32_t find_or_add(std::string_view key, std::uint32_t row, KeyOf key_of) {
    return find_or_add(key, hash_of(key), row, key_of);
  }
  /// The same for a key whose hash is known.
  template <class KeyOf>
  std::uint32_t find_or_add(std::string_view key, std::uint64_t hash, std::uint32_t row,
                            KeyOf key_of) {
    if (2 * (used_ + 1) > slots_.size()) resize(2 * used_ + 2);
    Slot& slot = slots_[position(key, hash, key_of)];
    if (slot.row != kNone) return slot.row;
    slot = {static_cast<std::uint32_t>(hash), row};
    ++used_;
    return kNone;
  }

  /// Announces a look-up that comes soon. In a large index nearly every look-up waits for memory;
  /// announced some ten look-ups ahead, the waiting times overlap.
  void announce(std::uint64_t hash) const {
#ifdef __GNUC__
    __builtin_prefetch(&slots_[static_cast<std::uint32_t>(hash) & (slots_.size() - 1)], 1);
#else
    (void)hash;
#endif
  }

  /// The row stored under the key, kNone when there is none.
  template <class KeyOf>
  [[nodiscard]] std::uint32_t find(std::string_view key, KeyOf key_of) const {
    return slots_[position(key, hash_of(key), key_of)].row;
  }

  /// Lets a key that is stored stand for another row with the same text from now on.
  template <class KeyOf>
  void replace(std::string_view key, std::uint32_t row, KeyOf key_of) {
    Slot& slot = slots_[position(key, hash_of(key), key_of)];
    if (slot.row != kNone) slot.row = row;
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t row = kNone;
  };

  template <class KeyOf>
  [[nodiscard]] std::size_t position(std::string_view key, std::uint64_t hash,
                                     KeyOf& key_of) const {
    const auto short_hash = static_cast<std::uint32_t>(hash);
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = short_hash & mask;
    while (slots_[at].row != kNone &&
           (slots_[at].hash != short_hash || key_of(slots_[at].row) != key)) {
      at = (at + 1) & mask;
    }
    return at;
  }

  void resize(std::size_t rows) {
    std::size_t size = 16;
    while (size < 2 * rows) size *= 2;
    std::vector<Slot> old(size);
    old.swap(slots_);
    for (const Slot& slot : old) {
      if (slot.row == kNone) continue;
      std::size_t at = slot.hash & (size - 1);
      while (slots_[at].row != kNone) at = (at + 1) & (size - 1);
      slots_[at] = slot;
    }
  }

  std::vector<Slot> slots_;
  std::size_t used_ = 0;
};

}  // namespace quenda

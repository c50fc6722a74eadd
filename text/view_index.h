#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace quenda {

/// Lets the processor fetch what is going to be read there soon.
inline void announce_reading(const void* place) {
#ifdef __GNUC__
  __builtin_prefetch(place);
#else
  (void)place;
#endif
}

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
    return find_or_add(short_hash_of(key), row,
                       [&](std::uint32_t stored) { return key_of(stored) == key; });
  }
  /// The same where the hash is known and the key need not be at hand: `same(row)` tells whether a
  /// stored row has the key. It is asked for rows with the same hash only.
  template <class Same>
  std::uint32_t find_or_add(std::uint32_t hash, std::uint32_t row, Same same) {
    if (2 * (used_ + 1) > slots_.size()) resize(2 * used_ + 2);
    Slot& slot = slots_[position(hash, same)];
    if (slot.row != kNone) return slot.row;
    slot = {hash, row};
    ++used_;
    return kNone;
  }

  /// Announces a look-up that comes soon. In a large index nearly every look-up waits for memory;
  /// announced some ten look-ups ahead, the waiting times overlap.
  void announce(std::uint32_t hash) const { announce_reading(&slots_[hash & (slots_.size() - 1)]); }

  /// A stored row that probably has the key of that hash, so that what is going to be asked of the
  /// row can be announced, too; kNone when there is none at first sight.
  [[nodiscard]] std::uint32_t likely_row(std::uint32_t hash) const {
    const Slot& slot = slots_[hash & (slots_.size() - 1)];
    return slot.hash == hash ? slot.row : kNone;
  }

  /// The row stored under the key, kNone when there is none.
  template <class KeyOf>
  [[nodiscard]] std::uint32_t find(std::string_view key, KeyOf key_of) const {
    return slots_[position(short_hash_of(key),
                           [&](std::uint32_t stored) { return key_of(stored) == key; })]
        .row;
  }

  /// Lets a stored key stand for another row from now on; `same` as for `find_or_add`.
  template <class Same>
  void replace(std::uint32_t hash, std::uint32_t row, Same same) {
    Slot& slot = slots_[position(hash, same)];
    if (slot.row != kNone) slot.row = row;
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t row = kNone;
  };

  template <class Same>
  [[nodiscard]] std::size_t position(std::uint32_t hash, Same same) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].row != kNone && (slots_[at].hash != hash || !same(slots_[at].row))) {
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

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/short_hash.h"

namespace quenda {

/// Finds rows by a text, as many as there come. It stores row numbers only; the text of a row is
/// asked from the caller, so that a key costs no copy. Row numbers go up to 2^32 - 2.
class ViewIndex {
 public:
  ViewIndex() { resize(0); }

  static constexpr std::uint32_t kNone = 0xFFFFFFFFU;

  /// The row stored under the key; when there is none, `row` is stored and kNone returned.
  /// `key_of(row)` gives the text of a stored row.
  template <class KeyOf>
  std::uint32_t find_or_add(std::string_view key, std::uint32_t row, KeyOf key_of) {
    if (2 * (used_ + 1) > slots_.size()) resize(2 * used_ + 2);
    const std::uint32_t hash = short_hash_of(key);
    Slot& slot = slots_[position(key, hash, key_of)];
    if (slot.row != kNone) return slot.row;
    slot = {hash, row};
    ++used_;
    return kNone;
  }

  /// The row stored under the key, kNone when there is none.
  template <class KeyOf>
  [[nodiscard]] std::uint32_t find(std::string_view key, KeyOf key_of) const {
    return slots_[position(key, short_hash_of(key), key_of)].row;
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t row = kNone;
  };

  template <class KeyOf>
  [[nodiscard]] std::size_t position(std::string_view key, std::uint32_t hash, KeyOf key_of) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].row != kNone && (slots_[at].hash != hash || key_of(slots_[at].row) != key)) {
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

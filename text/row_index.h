#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
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

/// Finds rows by the hash of a text of theirs, for as many rows as are known from the beginning. A
/// row costs 8 to 16 bytes: in an index of a million rows nearly every look-up waits for memory, so
/// that size is time. Of the hash a slot keeps only as many bits as its row number leaves free.
class RowIndex {
 public:
  /// For row numbers below `rows`, of which there may be up to 2^31.
  explicit RowIndex(std::size_t rows)
      : row_mask_(static_cast<std::uint32_t>((std::uint64_t{1} << std::bit_width(rows)) - 1)),
        slots_(std::bit_ceil(std::max<std::size_t>(2 * rows, 2)), kEmpty) {}

  static constexpr std::uint32_t kNone = 0xFFFFFFFFU;

  /// The row stored under the hash for which `same(row)` is true; when there is none, `row` is
  /// stored and kNone returned. `same` tells whether a row has the text in question; it is asked of
  /// few rows with other ones.
  template <class Same>
  std::uint32_t find_or_add(std::uint32_t hash, std::uint32_t row, Same same) {
    std::uint32_t& slot = slots_[position(hash, same)];
    if (slot != kEmpty) return row_of(slot);
    slot = slot_of(hash, row);
    return kNone;
  }

  /// Lets a stored text stand for another row from now on; `same` as for `find_or_add`.
  template <class Same>
  void replace(std::uint32_t hash, std::uint32_t row, Same same) {
    std::uint32_t& slot = slots_[position(hash, same)];
    if (slot != kEmpty) slot = slot_of(hash, row);
  }

  /// Announces a look-up that comes soon. Announced some ten look-ups ahead, the waiting times
  /// overlap.
  void announce(std::uint32_t hash) const { announce_reading(&slots_[hash & (slots_.size() - 1)]); }

  /// A stored row that probably has the text of that hash, so that what is going to be asked of the
  /// row can be announced, too; kNone when there is none at first sight.
  [[nodiscard]] std::uint32_t likely_row(std::uint32_t hash) const {
    const std::uint32_t slot = slots_[hash & (slots_.size() - 1)];
    return slot != kEmpty && has_bits_of(slot, hash) ? row_of(slot) : kNone;
  }

 private:
  /// No row number has all of its bits set.
  static constexpr std::uint32_t kEmpty = 0xFFFFFFFFU;

  [[nodiscard]] std::uint32_t row_of(std::uint32_t slot) const { return slot & row_mask_; }
  [[nodiscard]] std::uint32_t slot_of(std::uint32_t hash, std::uint32_t row) const {
    return (hash & ~row_mask_) | row;
  }
  [[nodiscard]] bool has_bits_of(std::uint32_t slot, std::uint32_t hash) const {
    return ((slot ^ hash) & ~row_mask_) == 0;
  }

  template <class Same>
  [[nodiscard]] std::size_t position(std::uint32_t hash, Same same) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at] != kEmpty && (!has_bits_of(slots_[at], hash) || !same(row_of(slots_[at])))) {
      at = (at + 1) & mask;
    }
    return at;
  }

  std::uint32_t row_mask_;
  std::vector<std::uint32_t> slots_;
};

}  // namespace quenda

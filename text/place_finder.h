#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "text/byte_block.h"

namespace quenda {

/// Finds the places of some characters in a text, from the front to the back, sixteen bytes at a
/// time: next to no time is spent on what lies between. The text may change in front of the place
/// found last.
template <std::size_t kCharacters>
class PlaceFinder {
 public:
  template <std::same_as<char>... Characters>
  explicit PlaceFinder(std::string_view text, Characters... characters)
      : text_(text), readable_(text.size()), patterns_{ByteBlock::filled_with(characters)...} {}

  /// Lets bytes behind the text be read, too, so that its end costs nothing: so many can be read
  /// from its beginning on.
  void allow_reading(std::size_t bytes) { readable_ = bytes; }

  /// Goes on from a place behind the one found last.
  void go_to(std::size_t place) {
    window_ = place;
    found_ = 0;
  }

  /// The next place of one of the characters; the size of the text when there is none left.
  std::size_t next() {
    while (found_ == 0) {
      if (window_ >= text_.size()) return text_.size();
      found_ = look_at(window_);
      window_ += kWindow;
    }
    const auto place = static_cast<std::size_t>(std::countr_zero(found_));
    found_ &= found_ - 1;
    return window_ - kWindow + place;
  }

 private:
  static constexpr std::size_t kBlock = ByteBlock::kSize;
  static constexpr std::size_t kWindow = 64;

  /// One bit for each of the bytes of a window that is one of the characters.
  [[nodiscard]] std::uint64_t look_at(std::size_t start) const {
    const char* const from = text_.data() + start;
    const std::size_t left = text_.size() - start;
    std::uint64_t found = 0;
    if (readable_ - start >= kWindow) {
      for (std::size_t at = 0; at < kWindow; at += kBlock) {
        found |= std::uint64_t{matches(ByteBlock::load(from + at))} << at;
      }
    } else {
      for (std::size_t at = 0; at < left && at < kWindow; at += kBlock) {
        const bool readable = readable_ - start - at >= kBlock;
        found |= std::uint64_t{matches(readable ? ByteBlock::load(from + at)
                                                : ByteBlock::load_part(from + at, left - at))}
                 << at;
      }
    }
    return left >= kWindow ? found : found & ((std::uint64_t{1} << left) - 1);
  }

  [[nodiscard]] std::uint32_t matches(ByteBlock bytes) const {
    // Not a loop, so that the compiler keeps the patterns in registers.
    return [&]<std::size_t... I>(std::index_sequence<I...>) {
      return (bytes.equal_to(patterns_[I]) | ...).top_bits();
    }
    (std::make_index_sequence<kCharacters>());
  }

  std::string_view text_;
  std::size_t readable_;
  std::array<ByteBlock, kCharacters> patterns_;
  std::size_t window_ = 0;   // where the window to be looked at next begins
  std::uint64_t found_ = 0;  // places of the window before it that have not been returned
};

template <std::same_as<char>... Characters>
PlaceFinder(std::string_view, Characters...) -> PlaceFinder<sizeof...(Characters)>;

}  // namespace quenda

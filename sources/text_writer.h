#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace quenda {

/// Writes a long text in short pieces: they gather in a block that stays in the cache.
class TextWriter {
 public:
  static constexpr std::size_t kBlock = 32UL * 1024;

  void reserve(std::size_t size) { text_.reserve(size); }
  [[nodiscard]] std::size_t size() const { return text_.size() + used_; }
  [[nodiscard]] bool empty() const { return size() == 0; }

  void put(char c) {
    if (used_ == kBlock) flush();
    block_[used_++] = c;
  }
  void put(std::string_view piece) {
    for (const char c : piece) put(c);
  }

  /// At least `size` characters to write to, at most a block; `advance` says how many it were.
  char* room(std::size_t size) {
    if (kBlock - used_ < size) flush();
    return block_.data() + used_;
  }
  void advance(std::size_t size) { used_ += size; }

  /// The last character; there has to be one.
  char& back() { return used_ > 0 ? block_[used_ - 1] : text_.back(); }

  /// Takes back everything behind the first characters.
  void cut(std::size_t size) {
    flush();
    text_.resize(size);
  }

  std::string take() {
    flush();
    return std::move(text_);
  }

 private:
  void flush() {
    text_.append(block_.data(), used_);
    used_ = 0;
  }

  std::string text_;
  std::array<char, kBlock> block_;
  std::size_t used_ = 0;
};

}  // namespace quenda

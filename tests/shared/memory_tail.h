#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/tail_writing.h"

namespace quenda {

/// An open file in memory.
class MemoryTail : public TailFile {
 public:
  explicit MemoryTail(std::string content) : content_(std::move(content)) {}
  [[nodiscard]] const std::string& content() const { return content_; }

  [[nodiscard]] std::uint64_t size() const override { return content_.size(); }
  [[nodiscard]] std::size_t read_at(std::uint64_t position, std::span<char> buffer) const override {
    return content_.copy(buffer.data(), buffer.size(), position);
  }
  void write_at(std::uint64_t position, std::string_view bytes) override {
    content_.resize(std::max(content_.size(), position + bytes.size()));
    std::copy(bytes.begin(), bytes.end(), content_.begin() + static_cast<std::ptrdiff_t>(position));
  }
  void cut(std::uint64_t length) override { content_.resize(length); }
  void flush() override {}

 private:
  std::string content_;
};

}  // namespace quenda

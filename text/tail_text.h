#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace quenda {

/// Bytes on their way into a file. They may be put together only while they are asked for, so that
/// they need not be in memory all at once.
class TailText {
 public:
  using Take = std::function<void(std::string_view part)>;

  virtual ~TailText() = default;
  [[nodiscard]] virtual std::uint64_t size() const = 0;
  /// Tells the bytes from one place to another, in their order, in parts that are good until the
  /// next one comes. The same bytes each time that it is asked.
  virtual void tell(std::uint64_t from, std::uint64_t to, const Take& take) const = 0;
};

/// Bytes that are there already.
class TailPieces : public TailText {
 public:
  explicit TailPieces(std::vector<std::string_view> pieces) : pieces_(std::move(pieces)) {}
  [[nodiscard]] std::uint64_t size() const override;
  void tell(std::uint64_t from, std::uint64_t to, const Take& take) const override;

 private:
  std::vector<std::string_view> pieces_;
};

}  // namespace quenda

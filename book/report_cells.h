#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "text/byte_block.h"

// Texts of Windows-1252 as a report has them, in UTF-8. They are put where there is room for them;
// each function returns where they end.
namespace quenda {

/// Bytes that a text takes in a cell of CSV, or in JSON, without the quotes around it.
[[nodiscard]] std::size_t size_in_csv(std::string_view text);
[[nodiscard]] std::size_t size_in_json(std::string_view text);

/// Bytes that have to be there for such a text: the quotes, and more than it takes, since some are
/// written and looked at meanwhile. Long texts are looked at, so that they take no more than they
/// need.
inline constexpr std::size_t kLongText = std::size_t{16} * 1024;
inline constexpr std::size_t kBesideText = 2 + ByteBlock::kSize;
[[nodiscard]] inline std::size_t room_for_csv(std::string_view text) {
  return kBesideText + (text.size() < kLongText ? 3 * text.size() : size_in_csv(text));
}
[[nodiscard]] inline std::size_t room_for_json(std::string_view text) {
  return kBesideText + (text.size() < kLongText ? 6 * text.size() : size_in_json(text));
}
/// Digits that a number has at most.
inline constexpr std::size_t kMostDigits = 20;

/// What is to stand there as it is.
inline char* put(char* to, std::string_view text) {
  return std::copy(text.begin(), text.end(), to);
}

inline char* put_number(char* to, std::uint64_t number) {
  return std::to_chars(to, to + kMostDigits, number).ptr;
}

/// A number that mostly is the one after the last: then only its digits at the end are changed.
/// `kMostDigits` bytes have to be there, whatever it takes.
class CountedNumber {
 public:
  char* put(char* to, std::uint64_t number) {
    if (number != last_) count_to(number);
    std::memcpy(to, digits_.data(), digits_.size());
    return to + size_;
  }

 private:
  void count_to(std::uint64_t number) {
    char& last_digit = digits_[size_ - 1];
    if (number > last_ && number - last_ == 1 && last_digit != '9') {
      ++last_digit;
    } else {
      size_ = static_cast<std::size_t>(put_number(digits_.data(), number) - digits_.data());
    }
    last_ = number;
  }

  std::uint64_t last_ = 0;
  std::array<char, kMostDigits> digits_{'0'};
  std::size_t size_ = 1;
};

/// A cell of CSV, in quotes where a reader needs them.
char* put_csv_cell(char* to, std::string_view text);
/// What stands within the quotes of a cell.
char* put_csv_quoted(char* to, std::string_view text);
/// A text of JSON with its quotes.
char* put_json_text(char* to, std::string_view text);

}  // namespace quenda

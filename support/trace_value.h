#pragma once

#include <concepts>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace quenda {

/// A value as trace lines and error reports show it: a text, a flag, a whole number, a list of
/// values, or nothing. Texts and lists are only looked at, so a value must not outlive them.
class TraceValue {
 public:
  TraceValue() = default;
  // NOLINTBEGIN(google-explicit-constructor): callers write the plain values
  TraceValue(std::string_view text) : value_(text) {}
  TraceValue(const std::string& text) : value_(std::string_view(text)) {}
  TraceValue(const char* text) : value_(std::string_view(text)) {}
  TraceValue(std::initializer_list<TraceValue> list) : value_(list) {}
  template <std::integral Number>
  TraceValue(Number number) {
    if constexpr (std::same_as<Number, bool>) {
      value_ = number;
    } else {
      value_ = static_cast<long long>(number);
    }
  }
  // NOLINTEND(google-explicit-constructor)

  using List = std::initializer_list<TraceValue>;
  using Value = std::variant<std::monostate, std::string_view, bool, long long, List>;
  [[nodiscard]] const Value& value() const { return value_; }

 private:
  Value value_;
};

using TraceValues = std::initializer_list<TraceValue>;

}  // namespace quenda

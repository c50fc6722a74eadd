// Texts as numbers, flags, dates and other encodings: a fault or a value, and what fits together.
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "fuzz/oracle.h"
#include "text/conversions.h"
#include "text/date_text.h"
#include "text/fault.h"
#include "text/text.h"

namespace {

/// The call's value, or nothing for a fault with one of the numbers that are promised.
template <class Call>
auto value_of(Call call) -> std::optional<decltype(call())> {
  try {
    return call();
  } catch (const quenda::RuntimeFault& fault) {
    quenda::expect("promised fault", fault.number() == quenda::kFaultOverflow ||
                                         fault.number() == quenda::kFaultTypeMismatch);
    return std::nullopt;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quenda;
  const std::string_view text = text_of(data, size);
  const bool numeric = is_numeric(text);
  const auto number = value_of([&] { return to_number(text); });
  if (number) expect("numeric texts have values", numeric);
  if (const auto whole = value_of([&] { return to_int16(text); })) {
    expect("whole number of a number", number && std::abs(*number - *whole) <= 0.5);
  }
  const auto flag = value_of([&] { return to_boolean(text); });
  if (flag && number) expect("flag of a number", *flag == (*number != 0));
  static_cast<void>(value_of([&] { return leading_number(text); }));
  const auto back = from_utf8(to_utf8(text));
  expect("UTF-8 and back", back && *back == text);
  if (const auto read = from_utf8(text)) expect_equal("UTF-8", to_utf8(*read), text);
  expect_equal("small letters of small letters", to_lower(to_lower(text)), to_lower(text));
  return 0;
}

#pragma once

#include <cstddef>
#include <cstdint>

// Which number of the source an entry was made of, in 32 bits, so that a row of the final list can
// be traced.
namespace quenda {

inline constexpr unsigned kOriginRowBits = 4;

/// `record` counts the source's records, lines or contacts from 0, the header included; `row` is
/// the number column or number kind, from 1 to 11.
constexpr std::uint32_t entry_origin(std::size_t record, std::size_t row) {
  return static_cast<std::uint32_t>((record << kOriginRowBits) | row);
}
constexpr std::size_t record_of(std::uint32_t origin) { return origin >> kOriginRowBits; }
constexpr std::size_t row_of(std::uint32_t origin) {
  return origin & ((1U << kOriginRowBits) - 1U);
}

}  // namespace quenda

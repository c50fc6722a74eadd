#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace quenda {

/// Ends the run, so that the input is kept, when what came out is not what the slow way gives.
inline void expect_equal(std::string_view what, std::string_view fast, std::string_view slow) {
  if (fast == slow) return;
  std::fprintf(stderr, "%.*s differs\n fast: [%.*s]\n slow: [%.*s]\n",
               static_cast<int>(what.size()), what.data(), static_cast<int>(fast.size()),
               fast.data(), static_cast<int>(slow.size()), slow.data());
  std::abort();
}

inline void expect(std::string_view what, bool holds) {
  expect_equal(what, holds ? "yes" : "no", "yes");
}

/// Input for the fuzzer's entry point.
inline std::string_view text_of(const unsigned char* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace quenda

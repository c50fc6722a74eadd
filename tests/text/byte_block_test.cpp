#include "text/byte_block.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace quenda {
namespace {

/// Sixteen of the bytes from a code on.
std::string bytes_from(unsigned code) {
  std::string bytes;
  for (unsigned i = 0; i < ByteBlock::kSize; ++i) bytes += static_cast<char>(code + 7 * i);
  return bytes;
}

/// The bits that a test of single bytes gives.
template <class Test>
std::uint32_t bits_of(const std::string& bytes, Test test) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (test(static_cast<unsigned char>(bytes[i]))) bits |= 1U << i;
  }
  return bits;
}

TEST(ByteBlock, ComparesEachByteAsACodeFrom0To255) {
  for (unsigned code = 0; code < 256; ++code) {
    const std::string bytes = bytes_from(code);
    const ByteBlock block = ByteBlock::load(bytes.data());
    EXPECT_EQ(block.top_bits(), bits_of(bytes, [](unsigned c) { return c >= 0x80; }));
    for (const unsigned limit : {0x00U, 0x1FU, 0x7FU, 0x80U, 0xBFU, 0xFFU}) {
      const char c = static_cast<char>(limit);
      EXPECT_EQ(block.up_to(c).top_bits(), bits_of(bytes, [&](unsigned b) { return b <= limit; }));
      EXPECT_EQ(block.equal_to(c).top_bits(),
                bits_of(bytes, [&](unsigned b) { return b == limit; }));
      EXPECT_EQ(block.above(c).equal_to('\0').top_bits(),
                bits_of(bytes, [&](unsigned b) { return b <= limit; }));
    }
  }
}

TEST(ByteBlock, CombinesBits) {
  const std::string bytes = "aabbccddeeffgghh";
  const ByteBlock block = ByteBlock::load(bytes.data());
  const ByteBlock low = block.up_to('d');
  const ByteBlock d = block.equal_to('d');
  EXPECT_EQ((low & d).top_bits(), 0x00C0U);
  EXPECT_EQ(low.without(d).top_bits(), 0x003FU);
  EXPECT_EQ((d | block.equal_to('h')).top_bits(), 0xC0C0U);
  std::string copy(ByteBlock::kSize, ' ');
  block.store(copy.data());
  EXPECT_EQ(copy, bytes);
}

}  // namespace
}  // namespace quenda

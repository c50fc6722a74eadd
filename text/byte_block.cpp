#include "text/byte_block.h"

namespace quenda {

ByteBlock ByteBlock::load_part(const char* from, std::size_t count) {
  std::array<char, kSize> copy{};
  std::memcpy(copy.data(), from, count);
  return load(copy.data());
}

}  // namespace quenda

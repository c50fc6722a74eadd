// Memory for a whole program. A large block, such as the text of a file, the index of its numbers
// or the rows of a list, is asked for on large pages: a file of 100 MB then costs the system some
// 50 page faults in place of 25,000, which was a fifth of the time of an import. Where the system
// has no large pages, the blocks are blocks like others.
#include <sys/mman.h>

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t kLargePage = 2UL * 1024 * 1024;
constexpr std::size_t kLargeBlock = 2 * kLargePage;

void* block_of(std::size_t size) noexcept {
#ifdef MADV_HUGEPAGE
  if (size >= kLargeBlock) {
    const std::size_t rounded = (size + kLargePage - 1) / kLargePage * kLargePage;
    void* const block = rounded < size ? nullptr : std::aligned_alloc(kLargePage, rounded);
    if (block != nullptr) ::madvise(block, rounded, MADV_HUGEPAGE);
    return block;
  }
#endif
  // NOLINTNEXTLINE(cppcoreguidelines-no-malloc): this is what the operators below are made of
  return std::malloc(size == 0 ? 1 : size);
}

}  // namespace

void* operator new(std::size_t size) {
  for (;;) {
    if (void* const block = block_of(size)) return block;
    const std::new_handler handler = std::get_new_handler();
    if (handler == nullptr) throw std::bad_alloc();
    handler();
  }
}

// NOLINTBEGIN(cppcoreguidelines-no-malloc): blocks of the operator above come from there
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { std::free(block); }
// NOLINTEND(cppcoreguidelines-no-malloc)

// Where the tool's pictures lie in memory: on large pages, as far as the system has them. Clearing
// small pages took more time than most effects. Knows nothing of what the memory is for.
#include <cstdlib>
#include <new>

#include <sys/mman.h>

namespace {

constexpr std::size_t LargePage = std::size_t{1} << 21;

void* Allocated(std::size_t size)
{
    if (size < 2 * LargePage) return std::malloc(size == 0 ? 1 : size);
    if (size > static_cast<std::size_t>(-1) - LargePage) return nullptr;
    const std::size_t rounded = (size + LargePage - 1) / LargePage * LargePage;
    void* const block = std::aligned_alloc(LargePage, rounded);
    // The last page stays a small one: what lies behind the block's end is never touched.
    if (block != nullptr) madvise(block, size / LargePage * LargePage, MADV_HUGEPAGE);
    return block;
}

}  // namespace

void* operator new(std::size_t size)
{
    void* const block = Allocated(size);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept
{
    std::free(block);
}

// Where the programs' pictures lie in memory: on large pages, as far as the system has them, and
// again in the place of the picture before. Having small or fresh pages cleared took more time than
// most effects. Knows nothing of what the memory is for.
#include <cstdlib>
#include <new>
#include <utility>

#include <malloc.h>
#include <sys/mman.h>

namespace {

constexpr std::size_t LargePage = std::size_t{1} << 21;
constexpr std::size_t LeastLarge = 2 * LargePage;

/// A large block that nobody uses; its first bytes say which comes next.
struct Unused {
    Unused* next;
};

/// This thread's. When a block is asked for that none of them fits, all go back to the system
/// first: so the program never holds more than it once used at the same time.
thread_local Unused* unused = nullptr;

bool Fits(void* block, std::size_t size)
{
    const std::size_t usable = malloc_usable_size(block);
    return size <= usable && usable - size < LargePage;
}

void* TakeUnused(std::size_t size)
{
    for (Unused** place = &unused; *place != nullptr; place = &(*place)->next)
        if (Fits(*place, size)) return std::exchange(*place, (*place)->next);
    while (unused != nullptr)
        std::free(std::exchange(unused, unused->next));
    return nullptr;
}

void* Allocated(std::size_t size)
{
    if (size < LeastLarge) return std::malloc(size == 0 ? 1 : size);
    if (size > static_cast<std::size_t>(-1) - LargePage) return nullptr;
    const std::size_t rounded = (size + LargePage - 1) / LargePage * LargePage;
    if (void* const block = TakeUnused(rounded)) return block;
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
    if (malloc_usable_size(block) < LeastLarge)
        std::free(block);
    else
        unused = new (block) Unused{unused};
}

void operator delete(void* block, std::size_t /*size*/) noexcept
{
    operator delete(block);
}

#include "canvas/large_pages.h"

#include <cstdlib>
#include <utility>

#include <sys/mman.h>

namespace pixano {
namespace {

constexpr std::size_t LargePage = std::size_t{1} << 21;
constexpr std::size_t LeastLarge = 2 * LargePage;

/// A large block that nobody uses; its own first bytes say how long it is and which comes next.
struct Unused {
    Unused* next;
    std::size_t length;
};

/// This thread's. When a block is asked for that none of them fits, all go back to the system
/// first: so the program never holds more than it once used at the same time.
class UnusedBlocks {
  public:
    UnusedBlocks() = default;
    UnusedBlocks(const UnusedBlocks&) = delete;
    UnusedBlocks& operator=(const UnusedBlocks&) = delete;
    ~UnusedBlocks() { Free(); }

    void Keep(void* block, std::size_t length)
    {
        first_ = new (block) Unused{.next = first_, .length = length};
    }
    /// One of exactly that length; nullptr when there is none.
    void* Take(std::size_t length)
    {
        for (Unused** place = &first_; *place != nullptr; place = &(*place)->next)
            if ((*place)->length == length) return std::exchange(*place, (*place)->next);
        Free();
        return nullptr;
    }

  private:
    void Free()
    {
        while (first_ != nullptr)
            std::free(std::exchange(first_, first_->next));
    }

    Unused* first_ = nullptr;
};

// The one global that changes. NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
thread_local UnusedBlocks unused;

std::size_t Rounded(std::size_t bytes)
{
    return (bytes + LargePage - 1) / LargePage * LargePage;
}

}  // namespace

void* TakeLargePages(std::size_t bytes)
{
    if (bytes < LeastLarge) return ::operator new(bytes);
    if (bytes > static_cast<std::size_t>(-1) - LargePage) throw std::bad_alloc();
    void* block = unused.Take(Rounded(bytes));
    if (block != nullptr) return block;
    block = std::aligned_alloc(LargePage, Rounded(bytes));
    if (block == nullptr) throw std::bad_alloc();
    // The last page stays a small one: what lies behind the block's end is never touched.
    madvise(block, bytes / LargePage * LargePage, MADV_HUGEPAGE);
    return block;
}

void GiveBackLargePages(void* block, std::size_t bytes) noexcept
{
    if (bytes < LeastLarge)
        ::operator delete(block);
    else
        unused.Keep(block, Rounded(bytes));
}

}  // namespace pixano

// Memory in large pages: what is given back is used again, or goes back to the system.
#include "canvas/large_pages.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>

#include <unistd.h>

namespace pixano::test {
namespace {

/// What the program holds of the memory, in bytes.
std::size_t Held()
{
    std::ifstream told("/proc/self/statm");
    std::size_t all = 0;
    std::size_t held = 0;
    told >> all >> held;
    return held * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

TEST(LargePages, HoldNoMoreThanWasUsedAtTheSameTime)
{
    constexpr std::size_t Step = std::size_t{4} << 20;
    constexpr std::size_t Most = 16 * Step;
    const std::size_t before = Held();
    for (std::size_t bytes = Step; bytes <= Most; bytes += Step) {
        void* const block = TakeLargePages(bytes);
        std::memset(block, 1, bytes);
        GiveBackLargePages(block, bytes);
    }
    // All of them together would be more than eight times as much as the largest.
    EXPECT_LT(Held(), before + 2 * Most);
}

TEST(LargePages, AreTheSameOnesForTheSameLength)
{
    constexpr std::size_t Bytes = std::size_t{8} << 20;
    void* const first = TakeLargePages(Bytes);
    GiveBackLargePages(first, Bytes);
    void* const next = TakeLargePages(Bytes);
    EXPECT_EQ(next, first);
    GiveBackLargePages(next, Bytes);
}

}  // namespace
}  // namespace pixano::test

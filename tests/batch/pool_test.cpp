#include "batch/pool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <vector>

namespace pixano::batch::test {
namespace {

TEST(Pool, TakesEachPlaceOnce)
{
    for (const unsigned threads : {1U, 2U, 7U, 200U}) {
        std::vector<std::atomic<int>> calls(100);
        ForEachPlace(calls.size(), threads, [&](std::size_t place) { ++calls[place]; });
        EXPECT_TRUE(std::ranges::all_of(calls, [](const auto& count) { return count == 1; }))
            << threads;
    }
}

TEST(Pool, OneThreadTakesThePlacesInOrder)
{
    std::vector<std::size_t> places;
    ForEachPlace(4, 1, [&](std::size_t place) { places.push_back(place); });
    EXPECT_EQ(places, (std::vector<std::size_t>{0, 1, 2, 3}));
}

TEST(Pool, WorksOnSeveralPlacesAtOnce)
{
    // Each call waits for the other one: one thread alone would never end.
    std::atomic<int> arrived = 0;
    ForEachPlace(2, 2, [&](std::size_t) {
        ++arrived;
        arrived.notify_all();
        for (int seen = arrived; seen < 2; seen = arrived)
            arrived.wait(seen);
    });
    EXPECT_EQ(arrived, 2);
}

TEST(Pool, HasNothingToDoWithoutPlaces)
{
    ForEachPlace(0, 4, [](std::size_t) { FAIL(); });
}

}  // namespace
}  // namespace pixano::batch::test

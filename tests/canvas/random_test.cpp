#include "canvas/random.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <ctime>
#include <limits>
#include <set>

namespace pixano::test {
namespace {

/// What the first four draws are in units of 2^-24.
using Draws = std::array<double, 4>;

Draws FirstOf(Random& random)
{
    Draws draws{};
    for (double& draw : draws)
        draw = random.Rnd() * 16777216;
    return draws;
}

struct Seeded {
    std::uint64_t reading;
    Draws draws;
};

// Calculated from the formulas of the seeding and of a draw, apart from this program.
constexpr std::array<Seeded, 7> Seeds{{
    {0, {4841478, 3405014, 7997183, 12072394}},
    {1, {10081177, 8335207, 1751891, 1513994}},
    {2, {4753487, 4499676, 7373421, 5150263}},
    {42, {12721019, 2571651, 705791, 274483}},
    {43, {3315553, 9532482, 9758535, 9182452}},
    {86399999999999, {14398673, 3608610, 15693232, 517576}},
    {std::numeric_limits<std::uint64_t>::max(), {13169856, 16145231, 13050555, 5004368}},
}};

TEST(Random, DrawsTheSameNumbersForTheSameReading)
{
    for (const Seeded& expected : Seeds) {
        Random random{Timer(expected.reading)};
        EXPECT_EQ(FirstOf(random), expected.draws) << expected.reading;
    }
}

TEST(Random, ReadsTheTimerOnceWhenMadeAndOnceAtEveryReseed)
{
    Random random{Timer(0)};
    EXPECT_EQ(FirstOf(random), Seeds[0].draws);
    random.Randomize();
    EXPECT_EQ(FirstOf(random), Seeds[1].draws);
    random.Randomize();
    EXPECT_EQ(FirstOf(random), Seeds[2].draws);
}

TEST(Random, StartsAfreshAtAReseedHoweverMuchWasDrawn)
{
    Random random{Timer(42)};
    for (int i = 0; i < 1000; ++i)
        random.Rnd();
    random.Randomize();
    EXPECT_EQ(FirstOf(random), Seeds[4].draws);
}

TEST(Random, StaysFromZeroToBelowOneAndFillsThatEvenly)
{
    Random random{Timer(5)};
    std::array<int, 10> tenths{};
    for (int i = 0; i < 100000; ++i) {
        const double drawn = random.Rnd();
        ASSERT_GE(drawn, 0);
        ASSERT_LT(drawn, 1);
        ++tenths.at(static_cast<std::size_t>(drawn * 10));
    }
    for (const int count : tenths)
        EXPECT_NEAR(count, 10000, 500);
}

TEST(Timer, CountsFromAGivenReading)
{
    Timer timer(7);
    EXPECT_EQ(timer.Read(), 7U);
    EXPECT_EQ(timer.Read(), 8U);
    EXPECT_EQ(timer.Read(), 9U);
}

constexpr std::uint64_t Second = 1000000000;
constexpr std::uint64_t Day = 86400 * Second;

/// The system's own clock, in nanoseconds since midnight.
std::uint64_t NanosecondsOfToday()
{
    timespec now{};
    EXPECT_EQ(clock_gettime(CLOCK_REALTIME, &now), 0);
    return static_cast<std::uint64_t>(now.tv_sec) % 86400 * Second +
           static_cast<std::uint64_t>(now.tv_nsec);
}

TEST(Timer, GivesTheNanosecondsOfTheDay)
{
    Timer timer;
    const std::uint64_t before = NanosecondsOfToday();
    const std::uint64_t reading = timer.Read();
    const std::uint64_t after = NanosecondsOfToday();
    EXPECT_LT(reading, Day);
    // Midnight may fall between them.
    EXPECT_LE((reading + Day - before) % Day, (after + Day - before) % Day);
}

// A clock in larger units would stand still from one tile or row to the next.
TEST(Timer, MovesFromOneReadingToTheNext)
{
    Timer timer;
    std::set<std::uint64_t> readings;
    for (int i = 0; i < 100; ++i)
        readings.insert(timer.Read());
    EXPECT_GT(readings.size(), 90U);
}

}  // namespace
}  // namespace pixano::test

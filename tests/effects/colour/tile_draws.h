// What "Distorsione 2" draws: the step of its tiles, and how far each is moved.
#pragma once

#include "support/reference_random.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace pixano::test {

/// How far a tile is moved.
struct Offset {
    int dx;
    int dy;
};

inline bool IsOffset(std::uint64_t reading, Offset offset)
{
    ReferenceRandom random(reading);
    return random.Whole(20) - 10 == offset.dx && random.Whole(20) - 10 == offset.dy;
}

inline int StepAt(std::uint64_t reading)
{
    return ReferenceRandom(reading).Whole(38) + 2;
}

/// A timer for a run of "Distorsione 2" with that tile step and those offsets of its first tiles.
inline std::uint64_t SeedOfTiles(int step, const std::vector<Offset>& offsets)
{
    const auto reading = FirstReadingWhere([&](std::uint64_t first) {
        if (StepAt(first) != step) return false;
        std::uint64_t tile = first;
        return std::all_of(offsets.begin(), offsets.end(),
                           [&tile](Offset offset) { return IsOffset(++tile, offset); });
    });
    return reading - 1;
}

}  // namespace pixano::test

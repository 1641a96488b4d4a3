// Checks an effect against the place that each pixel of its result comes from.
#pragma once

#include "effects/geometry/geometry.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace pixano::test {

inline constexpr auto Sizes = std::to_array<Size>({
    {1, 1},
    {1, 2},
    {1, 6},
    {1, 9},
    {2, 1},
    {5, 1},
    {8, 1},
    {2, 2},
    {3, 3},
    {4, 4},
    {7, 5},
    {6, 7},
    {5, 8},
    {16, 16},
    {99, 99},
    {101, 81},
    {100, 80},
    {102, 83},
});

/// Whether the two surfaces are alike; if not, says where they first differ.
inline testing::AssertionResult Alike(const Surface& actual, const Surface& expected)
{
    if (actual == expected) return testing::AssertionSuccess();
    for (int y = 0; y < expected.Height(); ++y)
        for (int x = 0; x < expected.Width(); ++x)
            if (actual.Point(x, y) != expected.Point(x, y))
                return testing::AssertionFailure()
                       << "(" << x << ", " << y << ") is " << actual.Point(x, y) << ", not "
                       << expected.Point(x, y);
    return testing::AssertionFailure() << "the sizes differ";
}

/// Runs the effect on varied pictures of many sizes. `source` gives the colour of the result at a
/// column and row of the old picture: Colour(const Surface& old, int column, int row).
template <typename Source>
void ExpectOnAllSizes(void (*effect)(Work&), Source source)
{
    for (const auto [width, height] : Sizes) {
        SCOPED_TRACE(std::to_string(width) + "x" + std::to_string(height));
        const Surface old = Varied(width, height);
        Surface expected(width, height);
        for (int row = 0; row < height; ++row)
            for (int column = 0; column < width; ++column)
                expected.PSet(column, row, source(old, column, row));
        EXPECT_TRUE(Alike(EffectRun(old).Apply(effect).work.Picture1, expected));
    }
}

}  // namespace pixano::test

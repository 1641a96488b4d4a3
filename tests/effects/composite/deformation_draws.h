// What "Deformazione Casuale" draws before it squeezes: the pattern of its bands and steps.
#pragma once

#include "effects/composite/expected_draws.h"

#include <cstdint>

namespace pixano::test {

/// Band lengths and largest steps: columns, rows, columns, rows.
struct Pattern {
    int r1 = 0;
    int r2 = 0;
    int r3 = 0;
    int r4 = 0;

    bool operator==(const Pattern&) const = default;
};

inline Pattern Drawn4(ExpectedDraws draws)
{
    Pattern pattern;
    pattern.r1 = draws.OneOf(20, 15);
    pattern.r2 = draws.OneOf(20, 10);
    pattern.r3 = draws.OneOf(2, 2);
    pattern.r4 = draws.OneOf(2, 2);
    return pattern;
}

/// A timer reading after which exactly that pattern is drawn.
inline std::uint64_t SeedFor(const Pattern& pattern)
{
    return ReadingWhere([&](const ExpectedDraws& draws) { return Drawn4(draws) == pattern; });
}

}  // namespace pixano::test

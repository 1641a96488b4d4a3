// Places that come out otherwise when they are multiplied instead of added up, or kept in Single: a
// sum of doubles ends just above or just below a half, where the product is that half.
#include "effects/composite/composite.h"
#include "effects/composite/expected_draws.h"
#include "effects/geometry/geometry.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

struct Turned {
    const char* what;
    void (*effect)(Work&);
    Size size;
    int x;
    int y;
    int fromX;
    int fromY;
};

// RotazMeno: row i reads column -1 + k * Larg / Alt in its k-th row, i = Alt + 1 - k; column j
// reads row j * Alt / Larg. RotazPiu: row i reads column (i + 1) * Larg / Alt; column j reads row
// -1 + m * Alt / Larg, j = Larg + 1 - m.
const std::vector<Turned> Turns{
    // k = 6 adds up to 2.5000000000000004: column 3; multiplied it is 2.5, column 2.
    {"-90° column", RotazMeno, {7, 12}, 1, 7, 3, 2},
    // j = 9 adds up to 7.499999999999999: row 7; multiplied it is 7.5, row 8.
    {"-90° row", RotazMeno, {12, 10}, 9, 9, 1, 7},
    // j = 6 adds up to 3.5000000000000004: row 4; in Single it is 3.4999998, row 3.
    {"-90° row in Single", RotazMeno, {12, 7}, 6, 6, 2, 4},
    // i = 8 adds up to 7.499999999999999: column 7; multiplied it is 7.5, column 8.
    {"+90° column", RotazPiu, {10, 12}, 9, 8, 7, 1},
    // m = 6 adds up to 2.5000000000000004: row 3; multiplied it is 2.5, row 2.
    {"+90° row", RotazPiu, {12, 7}, 7, 0, 2, 3},
    // i = 5 adds up to 3.5000000000000004: column 4; in Single it is 3.4999998, column 3.
    {"+90° column in Single", RotazPiu, {7, 12}, 6, 5, 4, 2},
};

TEST(QuarterTurns, AddTheirRatiosUpInDouble)
{
    for (const Turned& turn : Turns) {
        const Surface before = Varied(turn.size.width, turn.size.height);
        EffectRun run(before);
        run.Apply(turn.effect);
        EXPECT_EQ(run.work.Picture1.Point(turn.x, turn.y), before.Point(turn.fromX, turn.fromY))
            << turn.what;
    }
}

/// A run of "Deformazione Casuale" with those bands, and steps of 1 and 2.
Surface Deformed(const Surface& before, int r1, int r2)
{
    EffectRun run(before, ReadingWhere([&](ExpectedDraws draws) {
                      return draws.OneOf(20, 15) == r1 && draws.OneOf(20, 10) == r2 &&
                             draws.OneOf(2, 2) == 2 && draws.OneOf(2, 2) == 2;
                  }));
    return run.Apply(MulStepRnd).work.Picture1;
}

// R1 = 22, Larg = 48: columns 0 to 21, 23 to 47 by 2 are C = 35 cells; FX = 47 / 12 / 4.7 = 0.8333.
// Fifteen of them add up to 12.500000000000002, cell 13; multiplied they are 12.499999999999998,
// cell 12. Nine add up to 7.499999999999998, cell 7; in Single to 7.5000005, cell 8.
TEST(DeformazioneCasuale, AddsItsColumnsUpInDouble)
{
    const Surface before = Varied(48, 40);
    const Surface after = Deformed(before, 22, 10);
    EXPECT_EQ(after.Point(15, 0), before.Point(13, 0));
    EXPECT_EQ(after.Point(9, 0), before.Point(7, 0));
}

// R2 = 16, Alt = 26: rows 0 to 15, 17 to 25 by 2 are T = 21 cells; FY = 25 / 4 / 4.5 = 1.3889. Nine
// of them add up to 12.500000000000002, cell 13; multiplied they are 12.5, cell 12.
// R2 = 13, Alt = 31: rows 0 to 12, 14 to 30 by 2 are T = 22 cells; FY = 30 / 8 / 4.5 = 0.8333. Nine
// of them add up to 7.499999999999999, cell 7; in Single to 7.5000005, cell 8.
TEST(DeformazioneCasuale, AddsItsRowsUpInDouble)
{
    const Surface low = Varied(40, 26);
    EXPECT_EQ(Deformed(low, 15, 16).Point(0, 9), low.Point(0, 13));
    const Surface higher = Varied(40, 31);
    EXPECT_EQ(Deformed(higher, 15, 13).Point(0, 9), higher.Point(0, 7));
}

}  // namespace
}  // namespace pixano::test

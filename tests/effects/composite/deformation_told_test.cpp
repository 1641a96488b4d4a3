// "Deformazione Casuale" beside the same told step by step, and how many numbers it draws.
#include "effects/composite/composite.h"
#include "effects/composite/deformation_draws.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace pixano::test {
namespace {

/// The lines that a squeeze reads, told step by step.
std::vector<int> LinesRead(int lines, int band, int largest)
{
    std::vector<int> read;
    int x = 0;
    int sx = 1;
    int nx = 0;
    for (;;) {
        read.push_back(x);
        nx = nx + 1;
        if (nx == band) {
            nx = 0;
            sx = sx + 1;
        }
        x = x + sx;
        if (x > lines - 1) return read;
        if (sx > largest) {
            nx = 0;
            sx = 1;
        }
    }
}

int HalfToEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
    return static_cast<int>(below) + (up ? 1 : 0);
}

/// What the effect makes of a picture with untouched matrices; nothing where it must fail.
std::optional<Surface> Expected(const Surface& picture, const Pattern& pattern)
{
    const int larg = picture.Width();
    const int alt = picture.Height();
    const std::vector<int> columns = LinesRead(larg, pattern.r1, pattern.r3);
    const std::vector<int> rows = LinesRead(alt, pattern.r2, pattern.r4);
    const int c = static_cast<int>(columns.size());
    const int t = static_cast<int>(rows.size());
    if (c == larg - 1 || t == alt - 1 || c > 1501 || t > 1501) return std::nullopt;
    const double fx = (static_cast<double>(larg - 1) / (larg - 1 - c)) / 4.7;
    const double fy = (static_cast<double>(alt - 1) / (alt - 1 - t)) / 4.5;
    Surface result = picture;
    double v = 0;
    for (int y = 0; y <= alt - 1; ++y) {
        double u = 0;
        for (int x = 0; x <= larg - 1; ++x) {
            const int column = HalfToEven(u);
            const int row = HalfToEven(v);
            if (column < 0 || row < 0) return std::nullopt;
            Colour colour = 0;
            if (column < c && row < t)
                colour = picture.Point(columns[static_cast<std::size_t>(column)],
                                       rows[static_cast<std::size_t>(row)]);
            result.PSet(x, y, colour);
            u += fx;
            if (u > c) break;
        }
        v += fy;
        if (v > t) break;
    }
    return result;
}

TEST(DeformazioneCasuale, PaintsAsItsDescriptionSaysAtManySizes)
{
    int compared = 0;
    for (const auto& [width, height] :
         {std::pair(1, 1), std::pair(1, 2), std::pair(2, 1), std::pair(2, 2), std::pair(3, 3),
          std::pair(7, 5), std::pair(16, 16), std::pair(1, 40), std::pair(40, 1), std::pair(45, 32),
          std::pair(99, 99), std::pair(101, 81), std::pair(1501, 90), std::pair(90, 1501),
          std::pair(700, 600), std::pair(1500, 1500)}) {
        for (const std::uint64_t reading : {1U, 2U, 3U}) {
            const Surface picture = Varied(width, height);
            const auto expected = Expected(picture, Drawn4(ExpectedDraws(reading)));
            EffectRun run(picture, reading);
            if (expected) {
                EXPECT_TRUE(run.Apply(MulStepRnd).work.Picture1 == *expected)
                    << width << "x" << height << " from " << reading;
                ++compared;
            } else {
                EXPECT_THROW(run.Apply(MulStepRnd), Fault) << width << "x" << height;
            }
        }
    }
    EXPECT_GT(compared, 30);
}

// The frame reseeds, not the effect: exactly four numbers are drawn.
TEST(DeformazioneCasuale, DrawsFourNumbersAndNoMore)
{
    EffectRun run(Varied(60, 60), 9);
    run.Apply(MulStepRnd);
    ExpectedDraws draws(9);
    for (int i = 0; i < 4; ++i)
        draws.Next();
    EXPECT_EQ(run.work.Rnd(), draws.Next());
}

TEST(DeformazioneCasuale, DiffersFromRunToRun)
{
    const Surface picture = Varied(120, 90);
    EffectRun run(picture);
    const Surface first = run.Apply(MulStepRnd).work.Picture1;
    run.Load(picture);
    run.work.Randomize();
    EXPECT_NE(run.Apply(MulStepRnd).work.Picture1, first);
}

// After an effect that made the size even the canvas is wider and higher: the rest stays.
TEST(DeformazioneCasuale, LeavesWhatLiesOutsideTheMeasuredPicture)
{
    const Surface before = Varied(61, 71);
    EffectRun run(before, 4);
    run.work.Larg = 60;
    run.work.Alt = 70;
    run.Apply(MulStepRnd);
    Surface measured(60, 70);
    for (int y = 0; y < 70; ++y)
        for (int x = 0; x < 60; ++x)
            measured.PSet(x, y, before.Point(x, y));
    const Surface expected = Expected(measured, Drawn4(ExpectedDraws(4))).value();
    for (int y = 0; y < 71; ++y)
        for (int x = 0; x < 61; ++x)
            ASSERT_EQ(run.work.Picture1.Point(x, y),
                      x < 60 && y < 70 ? expected.Point(x, y) : before.Point(x, y));
}

}  // namespace
}  // namespace pixano::test

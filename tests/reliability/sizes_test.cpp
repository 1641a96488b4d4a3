// Every effect on pictures of every small size and of the sizes where something ends: it paints or
// tells a run-time error, and the snapshot taken before gives back every byte.
#include "effects/catalogue.h"
#include "pictures/byte_files.h"
#include "reliability/fuzz_time.h"
#include "reliability/sizes_expected.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <string>

namespace pixano::test {
namespace {

class EffectsOnSizes : public testing::Test {
  protected:
    /// Takes a snapshot of a picture of that size and runs every effect, one after another as a
    /// user might, each on what the one before has left. The snapshot gives the picture back.
    void TryAll(Size size)
    {
        const Surface original = Varied(size.width, size.height);
        WriteWorkingBitmap(original, snapshot);
        EffectRun run(original, 7);
        Surface picture = original;
        for (const Effect& effect : Effects) {
            const bool done = Run(run, effect, picture);
            SCOPED_TRACE(std::string(effect.name) + " on " + std::to_string(size.width) + "x" +
                         std::to_string(size.height) + (done ? "" : ", which failed"));
            EXPECT_EQ(done, Paints(effect.name, size).value_or(done));
            EXPECT_EQ(run.work.Picture1.Width(), size.width);
            EXPECT_EQ(run.work.Picture1.Height(), size.height);
            if (HasFailure()) return;
            if (done) picture = run.work.Picture1;
        }
        EXPECT_TRUE(ReadWorkingPicture(snapshot).picture == original);
    }

    /// False when the effect ended in a run-time error. Everything else that is thrown fails the
    /// test.
    bool Run(EffectRun& run, const Effect& effect, const Surface& picture)
    {
        ++runs;
        run.Load(picture);
        run.work.Valori = {0, 2500, 2500, 2500, 2500, 2500};
        try {
            run.Apply(effect);
            return true;
        } catch (const Fault&) {
            ++faults;
            return false;
        }
    }

    void Tell() const { std::printf("%d runs, %d run-time errors told\n", runs, faults); }

    TemporaryFolder folder;
    const std::string snapshot = folder / "temp.bml";
    int runs = 0;
    int faults = 0;
};

TEST_F(EffectsOnSizes, From1To12)
{
    for (int height = 1; height <= 12; ++height)
        for (int width = 1; width <= 12; ++width)
            TryAll({width, height});
    Tell();
    EXPECT_EQ(runs, 144 * static_cast<int>(Effects.size()));
}

// The matrices end at 1500.
TEST_F(EffectsOnSizes, AtTheEndOfTheMatrices)
{
    for (const int side : {1499, 1500, 1501, 1502})
        for (const int other : {1, 2, 8}) {
            TryAll({side, other});
            TryAll({other, side});
        }
    Tell();
}

TEST_F(EffectsOnSizes, TheLongestSides)
{
    TryAll({32767, 1});
    TryAll({1, 32767});
    Tell();
}

class EffectsOnLargeSizes : public EffectsOnSizes, public testing::WithParamInterface<int> {};

TEST_P(EffectsOnLargeSizes, AtTheEndOfTheMatrices)
{
    if (!IsLong()) return TryAll({GetParam(), 40});
    for (const int height : {1499, 1500, 1501, 1502})
        TryAll({GetParam(), height});
    Tell();
}

INSTANTIATE_TEST_SUITE_P(Limit, EffectsOnLargeSizes, testing::Values(1499, 1500, 1501, 1502),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace pixano::test

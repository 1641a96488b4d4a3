// "Mini Foto Rnd": what it tells of its progress, and how large a picture may be.
#include "effects/composite/composite.h"
#include "effects/composite/expected_draws.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

/// The timer reading that comes before one after which both steps are `passo`.
std::uint64_t SeedBefore(int passo)
{
    return ReadingWhere([passo](ExpectedDraws draws) {
               const int passoX = draws.OneOf(4, 2);
               const int passoY = draws.OneOf(4, 2);
               return passoX == passo && passoY == passo;
           }) -
           1;
}

TEST(MiniFotoRnd, TellsTheSampledRowsAfterTheWindowIsShown)
{
    for (const int passo : {2, 3, 4, 5}) {
        EffectRun run(Varied(12, 23), SeedBefore(passo));
        run.Apply(MiniRnd);
        EXPECT_EQ(run.progress.values, Steps(0, 21, passo));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

/// A progress window that cannot be shown.
class NoWindow : public Progress {
  public:
    void Show() override { throw Fault(FaultKind::InvalidCall); }
};

TEST(MiniFotoRnd, ShowsTheWindowAfterReseedingAndBeforeTheFirstDraw)
{
    NoWindow progress;
    Work work(MemoryStore(), progress, Timer(20));
    work.Picture1 = Varied(4, 4);
    work.Larg = 4;
    work.Alt = 4;
    EXPECT_THROW(MiniRnd(work), Fault);
    EXPECT_EQ(work.Rnd(), ExpectedDraws(21).Next());
}

// 3001 columns by 2 are cells 0 to 1499 and one beside them.
TEST(MiniFotoRnd, WorksWhileTheColumnBesideTheMiniatureFitsIntoTheMatrix)
{
    EXPECT_NO_THROW(EffectRun(Varied(3001, 4), SeedBefore(2)).Apply(MiniRnd));
    EXPECT_NO_THROW(EffectRun(Varied(4, 3001), SeedBefore(2)).Apply(MiniRnd));
    EXPECT_NO_THROW(EffectRun(Varied(7500, 4), SeedBefore(5)).Apply(MiniRnd));
}

// 3003 columns by 2 are cells 0 to 1500; the one beside them is missed by the first copy that is
// not cut before it, with its first row painted up to there.
TEST(MiniFotoRnd, FailsWhilePastingWhereOnlyTheColumnBesideDoesNotFit)
{
    for (const int larg : {3002, 3003}) {
        const Surface before = Varied(larg, 4);
        EffectRun run(before, SeedBefore(2));
        EXPECT_EQ(FaultOf(run, MiniRnd), FaultKind::SubscriptOutOfRange);
        EXPECT_NE(run.work.Picture1, before);
        EXPECT_EQ(run.progress.values, Steps(0, 2, 2));
    }
}

TEST(MiniFotoRnd, FailsInTheFirstSampledRowOfAPictureFarTooWide)
{
    const Surface before = Varied(3004, 4);
    EffectRun run(before, SeedBefore(2));
    EXPECT_EQ(FaultOf(run, MiniRnd), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.work.Picture1, before);
    EXPECT_EQ(run.progress.values, Steps(0, 0));
    EXPECT_EQ(run.progress.shownAfter, 0);
}

TEST(MiniFotoRnd, FailsInTheLastSampledRowOfAPictureFarTooHigh)
{
    const Surface before = Varied(4, 3004);
    EffectRun run(before, SeedBefore(2));
    EXPECT_EQ(FaultOf(run, MiniRnd), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(run.work.Picture1, before);
    EXPECT_EQ(run.progress.values.back(), 3002);
}

}  // namespace
}  // namespace pixano::test

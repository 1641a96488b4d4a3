// What surrounds the loops of an effect, in its order, and whose pixel working file it deletes.
#include "effects/frame.h"

#include "files/text_store.h"
#include "support/effect_run.h"
#include "support/reference_random.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

void WriteAndFail(Work& w)
{
    w.ElabSer.OpenForOutput();
    w.ElabSer.Write(1);
    w.ElabSer.Close();
    throw Fault(FaultKind::InvalidCall);
}

void WriteOne(Work& w)
{
    w.ElabSer.OpenForOutput();
    w.ElabSer.Write(7);
    w.ElabSer.Close();
}

class FrameOnDisk : public testing::Test {
  protected:
    bool Exists() const { return std::filesystem::exists(name); }
    void Run(void (*loops)(Work&), const AroundLoops& around = {})
    {
        RunOnCanvas(work, {.name = "", .run = loops, .family = Family::Geometry}, around);
    }

    TemporaryFolder folder;
    const std::string name = folder / "elab.ser";
    Progress progress;
    Work work{TextStore(name), progress, Timer(1)};
};

TEST_F(FrameOnDisk, DeletesTheFileOfThisRunWhenAllElseIsDone)
{
    bool before = false;
    bool after = false;
    Run(WriteOne, {.before = [&] { before = !Exists(); }, .after = [&] { after = Exists(); }});
    EXPECT_TRUE(before);
    EXPECT_TRUE(after);
    EXPECT_FALSE(Exists());
}

TEST_F(FrameOnDisk, LeavesTheFileOfAFaultToTheNextRunThatMakesOne)
{
    EXPECT_THROW(Run(WriteAndFail), Fault);
    EXPECT_TRUE(Exists());
    Run([](Work&) {});
    EXPECT_TRUE(Exists());
    Run(WriteOne);
    EXPECT_FALSE(Exists());
    // Somebody else's file of that name is not this run's either.
    WriteBytes(name, "other");
    Run([](Work&) {});
    EXPECT_EQ(BytesOf(name), "other");
}

TEST(EffectFrame, ReseedsBeforeAnythingElse)
{
    ReferenceRandom expected(1);
    expected.Randomize();
    EffectRun run({"ab"});
    Effect effect{.name = "", .run = [](Work&) {}, .family = Family::Geometry};
    effect.reseeds = true;
    double drawn = -1;
    RunOnCanvas(run.work, effect, {.before = [&] { drawn = run.work.Rnd(); }, .after = [] {}});
    EXPECT_EQ(drawn, expected.Rnd());
}

TEST(EffectFrame, GivesAnEffectItsOwnStrengthWhoeverRanBefore)
{
    // The loop before left another cell in use; an effect without a strength leaves it.
    EffectRun run({"ab"});
    run.work.Valori = {11, 22, 33, 44, 55};
    for (const char* const before : {"Vetro", "Negativo Artistico", "Specchio"}) {
        RunOnCanvas(run.work, *FindEffect(before), {});
        double strength = 0;
        RunOnCanvas(run.work, *FindEffect("Colorazione"),
                    {.before = [&] { strength = run.work.Valori.at(run.work.IndValore - 1); },
                     .after = [] {}});
        EXPECT_EQ(strength, 22) << before;
    }
}

}  // namespace
}  // namespace pixano::test

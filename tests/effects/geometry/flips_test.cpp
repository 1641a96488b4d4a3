#include "effects/geometry/geometry.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

TEST(Specchio, ExchangesLeftAndRight)
{
    EXPECT_EQ(EffectRun({"abc", "def"}).Apply(Specchio).Result(), (Letters{"cba", "fed"}));
}

TEST(Specchio, TwiceRestoresThePicture)
{
    const Surface picture = Varied(7, 5);
    EXPECT_EQ(EffectRun(picture).Apply(Specchio).Apply(Specchio).work.Picture1, picture);
}

TEST(Capovolgi, TurnsTheRowsAndMovesTheColumnsOneToTheRight)
{
    EXPECT_EQ(EffectRun({"abc", "def"}).Apply(Capov).Result(), (Letters{"~fe", "~cb"}));
}

TEST(CapovolgiASpecchio, ExchangesTopAndBottom)
{
    EXPECT_EQ(EffectRun({"abc", "def", "ghi"}).Apply(CapovSpec).Result(),
              (Letters{"ghi", "def", "abc"}));
}

TEST(CapovolgiASpecchio, TwiceRestoresThePicture)
{
    const Surface picture = Varied(6, 9);
    EXPECT_EQ(EffectRun(picture).Apply(CapovSpec).Apply(CapovSpec).work.Picture1, picture);
}

TEST(Flips, TellOneProgressValueARowAfterTheCapture)
{
    for (auto* const effect : {Capov, Specchio, CapovSpec}) {
        EffectRun run({"ab", "cd", "ef"});
        run.Apply(effect);
        EXPECT_EQ(run.progress.values, Steps(0, 3));
        EXPECT_EQ(run.progress.shownAfter, 0);
    }
}

TEST(Flips, OnePixel)
{
    EXPECT_EQ(EffectRun({"a"}).Apply(Specchio).Result(), (Letters{"a"}));
    EXPECT_EQ(EffectRun({"a"}).Apply(CapovSpec).Result(), (Letters{"a"}));
    EXPECT_EQ(EffectRun({"a"}).Apply(Capov).Result(), (Letters{"~"}));
}

}  // namespace
}  // namespace pixano::test

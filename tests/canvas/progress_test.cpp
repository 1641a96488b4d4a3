#include "canvas/progress.h"
#include "support/faults.h"

#include <algorithm>
#include <limits>
#include <string>

namespace pixano::test {
namespace {

/// A progress window that holds what it is told, a bar within `lowest` and 400.
class TestWindow : public ProgressWindow {
  public:
    void Show() override
    {
        ++shown;
        caption = "Elab. Capovolgi";
    }
    void SetBar(float value) override { bar = std::max(value, lowest); }
    float Bar() const override { return bar; }
    void SetCaption(const std::string& text) override { caption = text; }
    std::string Caption() const override { return caption; }

    int shown = 0;
    float bar = 0;
    float lowest = std::numeric_limits<float>::lowest();
    std::string caption = "Form4";
};

class ShownProgressTest : public testing::Test {
  protected:
    void ExpectTold(double n, int alt, float bar, const std::string& caption)
    {
        progress.Avanzamento(n, alt);
        EXPECT_EQ(window.bar, bar);
        EXPECT_EQ(window.caption, caption);
    }

    TestWindow window;
    ShownProgress progress{window};
};

TEST_F(ShownProgressTest, GoesFromNothingToAllAndNotBeyond)
{
    progress.Show();
    EXPECT_EQ(window.shown, 1);
    ExpectTold(0, 480, 0, "Elab. Capovolgi  (0%)");
    ExpectTold(480, 480, 400, "Elab. Capovolgi  (100%)");
    ExpectTold(481, 480, 400, "Elab. Capovolgi  (100%)");
    ExpectTold(4, 3, 400, "Elab. Capovolgi  (100%)");  // 533 without the limit
    EXPECT_EQ(progress.ValBarra(), 400);
    EXPECT_EQ(progress.Percento(), 100);
}

TEST_F(ShownProgressTest, RoundsTheBarAndThePercentageDown)
{
    progress.Show();
    ExpectTold(1, 3, 133, "Elab. Capovolgi  (33%)");
    ExpectTold(2, 3, 266, "Elab. Capovolgi  (66%)");
    EXPECT_EQ(progress.Percento(), 66);
    ExpectTold(399, 400, 399, "Elab. Capovolgi  (99%)");
}

TEST_F(ShownProgressTest, BuildsTheCaptionOnTheOneTakenAtTheFirstCall)
{
    progress.Show();
    progress.Avanzamento(0, 4);
    window.caption = "something else";
    ExpectTold(1, 4, 100, "Elab. Capovolgi  (25%)");
}

TEST_F(ShownProgressTest, KeepsTheCaptionOfBeforeTheWindowWasShown)
{
    progress.Avanzamento(0, 4);
    progress.Show();
    EXPECT_EQ(window.caption, "Elab. Capovolgi");
    ExpectTold(1, 4, 100, "Form4  (25%)");
}

TEST_F(ShownProgressTest, TakesANewCaptionAfterTheWindowWasUnloaded)
{
    progress.Show();
    progress.Avanzamento(4, 4);
    progress.Unloaded();
    window.caption = "Elab. Specchio";
    ExpectTold(2, 4, 200, "Elab. Specchio  (50%)");
}

TEST_F(ShownProgressTest, DoesNotHoldNegativeValues)
{
    progress.Show();
    // Int(-133.3) = -134, Int(-134 / 4) = -34
    ExpectTold(-1, 3, -134, "Elab. Capovolgi  (-34%)");
    EXPECT_EQ(progress.ValBarra(), -134);
}

TEST_F(ShownProgressTest, TakesThePercentageFromTheBarItself)
{
    window.lowest = 0;
    progress.Show();
    ExpectTold(-1, 3, 0, "Elab. Capovolgi  (0%)");
    EXPECT_EQ(progress.ValBarra(), -134);
}

TEST_F(ShownProgressTest, FailsWithoutHeightAndLeavesTheWindowAlone)
{
    progress.Show();
    progress.Avanzamento(1, 4);
    for (const double n : {0, 1})
        EXPECT_EQ(FaultIn([&] { progress.Avanzamento(n, 0); }), FaultKind::DivisionByZero);
    EXPECT_EQ(window.caption, "Elab. Capovolgi  (25%)");
    EXPECT_EQ(window.bar, 100);
}

TEST(Progress, WorksWithoutAWindow)
{
    Progress progress;
    progress.Show();
    progress.Avanzamento(3, 7);  // 1200 / 7 = 171.4
    EXPECT_EQ(progress.ValBarra(), 171);
    EXPECT_EQ(FaultIn([&] { progress.Avanzamento(0, 0); }), FaultKind::DivisionByZero);
}

}  // namespace
}  // namespace pixano::test

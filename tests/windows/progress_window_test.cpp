// The progress window: really seen while the event loop stands still, and cheap.
#include "support/paint_count.h"
#include "windows/form4.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

class ProgressShown : public testing::Test {
  protected:
    ProgressShown()
    {
        window.effectName = [] { return QString("Prova"); };
    }
    QProgressBar& Bar() { return *window.findChild<QProgressBar*>("ProgressBar1"); }
    Form4 window;
};

TEST_F(ProgressShown, LeavesTheNumberToTheTitle)
{
    EXPECT_FALSE(Bar().isTextVisible());
}

TEST_F(ProgressShown, IsWideEnoughForItsTitle)
{
    EXPECT_EQ(window.width(), 380);
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
}

TEST_F(ProgressShown, CountsFromNoneToFourHundred)
{
    EXPECT_EQ(Bar().minimum(), 0);
    EXPECT_EQ(Bar().maximum(), 400);
    window.Show();
    EXPECT_EQ(window.Bar(), 0.0F);
    window.SetBar(133);
    EXPECT_EQ(window.Bar(), 133.0F);
    window.SetBar(400);
    EXPECT_EQ(Bar().value(), 400);
}

TEST_F(ProgressShown, IsExposedAndPaintedWithoutTheEventLoop)
{
    PaintCount paints(Bar());
    window.Show();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.windowHandle()->isExposed());
    EXPECT_GE(paints.count, 1);
}

TEST_F(ProgressShown, RepaintsAtMostTwentyFiveTimesASecond)
{
    window.Show();
    PaintCount paints(Bar());
    QElapsedTimer clock;
    clock.start();
    int step = 0;
    while (clock.elapsed() < 400) {
        window.SetBar(static_cast<float>(step % 401));
        window.SetCaption("Prova " + std::to_string(++step));
    }
    const auto most = clock.elapsed() / 40;
    EXPECT_GE(paints.count, 1);
    EXPECT_LE(paints.count, most);
    EXPECT_GT(step, 2 * paints.count);
}

TEST_F(ProgressShown, PaintsTheFullBarOfEveryEffectHoweverShort)
{
    for (const char* const which : {"the first", "the next"}) {
        window.Show();
        const PaintCount paints(Bar());
        window.ShowFull();
        EXPECT_EQ(paints.count, 1) << which;
        window.Unload();
    }
}

TEST_F(ProgressShown, StandsInTheMiddleOfTheScreen)
{
    window.Show();
    const QPoint apart = window.geometry().center() - window.screen()->availableGeometry().center();
    // As far as half a frame is.
    EXPECT_LE(apart.manhattanLength(), 40);
}

TEST_F(ProgressShown, TellsThatTheUserClosedIt)
{
    int closed = 0;
    QObject::connect(&window, &Form4::Closed, [&] { ++closed; });
    window.Show();
    window.hide();
    EXPECT_EQ(closed, 0);
    window.Show();
    window.close();
    EXPECT_EQ(closed, 1);
}

}  // namespace
}  // namespace pixano::test

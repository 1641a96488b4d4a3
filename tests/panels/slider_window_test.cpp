// The slider window by itself: its place, its size and what it shows of a strength.
#include "panels/shown_slider.h"

namespace pixano::test {
namespace {

TEST_F(SliderWindow, OpensJustBelowTheTitleOfThePalette)
{
    EXPECT_EQ(window.windowTitle().toStdString(), "Vetro");
    // 140 twips to the right are 9.33 pixels, 600 twips down are 40.
    EXPECT_EQ(window.pos(), QPoint(309, 47));
}

TEST_F(SliderWindow, ReachesNoFurtherRightThanThePalette)
{
    EXPECT_EQ(window.width(), 200);
}

TEST_F(SliderWindow, IsWiderForALongTitleButKeepsItsControlsBeside)
{
    QFont bold;
    bold.setBold(true);
    Form11 wide("Negativo Artistico", Palette());
    wide.show();
    EXPECT_GE(wide.width(), QFontMetrics(bold).horizontalAdvance("Negativo Artistico") + 94);
    for (const QWidget* const control : wide.findChildren<QWidget*>())
        EXPECT_LE(control->geometry().right(), 200) << control->objectName().toStdString();
}

TEST_F(SliderWindow, RunsFromNothingToTenThousand)
{
    EXPECT_EQ(Slider().orientation(), Qt::Horizontal);
    EXPECT_EQ(Slider().minimum(), 0);
    EXPECT_EQ(Slider().maximum(), 10000);
    EXPECT_EQ(Slider().singleStep(), 100);
    EXPECT_EQ(Slider().pageStep(), 1000);
    EXPECT_EQ(Slider().tickInterval(), 1000);
    EXPECT_EQ(Slider().tickPosition(), QSlider::TicksBelow);
}

TEST_F(SliderWindow, ShowsTheStrengthAsItIsWrittenAndTheSliderAtTheNearestPlace)
{
    window.ShowStrength(2.5);
    // Halves go to the even neighbour; a move of the slider is a change like any other.
    ExpectMovedTo(2);
    window.ShowStrength(2.25);
    EXPECT_EQ(Label(), "2.25") << "the slider stands at 2 already";
    window.ShowStrength(2.2500000001);
    EXPECT_EQ(Label(), "2.2500000001");
    EXPECT_EQ(moves, (std::vector<int>{2}));
}

TEST_F(SliderWindow, GoesToItsNearerEndForAStrengthOutsideItsRange)
{
    window.ShowStrength(12010);
    ExpectMovedTo(10000);
    window.ShowStrength(-3);
    ExpectMovedTo(0);
    window.ShowStrength(1e300);
    ExpectMovedTo(10000);
}

TEST_F(SliderWindow, CountsTheEndAsAMoveEvenWhenItStandsThere)
{
    window.ShowStrength(10000);
    moves.clear();
    window.ShowStrength(10000.6);
    ExpectMovedTo(10000);
    window.ShowStrength(0);
    moves.clear();
    window.ShowStrength(-1);
    ExpectMovedTo(0);
}

TEST_F(SliderWindow, StaysAtAnEndThatTheStrengthIsRoundedTo)
{
    window.ShowStrength(10000);
    moves.clear();
    window.ShowStrength(10000.5);
    EXPECT_EQ(Label(), "10000.5");
    EXPECT_TRUE(moves.empty());
}

TEST_F(SliderWindow, TellsOfItsFirstSizeAndOfEveryOther)
{
    Form11 other("Forbici", Palette());
    int resized = 0;
    QObject::connect(&other, &Form11::Resized, [&] { ++resized; });
    EXPECT_EQ(resized, 0);
    other.show();
    EXPECT_EQ(resized, 1);
    other.resize(other.width() + 40, other.height());
    EXPECT_EQ(resized, 2);
}

}  // namespace
}  // namespace pixano::test

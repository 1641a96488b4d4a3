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

TEST_F(SliderWindow, IsWiderForALongTitleAndKeepsItsControlsOnTheScreen)
{
    QFont bold;
    bold.setBold(true);
    for (const char* const title : {"Negativo Artistico", "Foto Color Rnd"}) {
        Form11 wide(title, Palette());
        wide.show();
        // Beside the title stand a sign and three buttons.
        EXPECT_GE(wide.width(), QFontMetrics(bold).horizontalAdvance(title) + 120);
        const auto rightOf = [&wide](const char* name) {
            return wide.findChild<QWidget*>(name)->geometry().right();
        };
        const int screenRight = wide.screen()->geometry().right();
        wide.move(screenRight - 199, 7);
        QCoreApplication::processEvents();
        EXPECT_GT(wide.geometry().right(), screenRight);
        for (const QWidget* const control : wide.findChildren<QWidget*>())
            EXPECT_LE(wide.x() + control->geometry().right(), screenRight)
                << control->objectName().toStdString();
        // Once it is wholly on the screen they fill it.
        wide.move(0, 7);
        QCoreApplication::processEvents();
        const int margin = wide.findChild<QWidget*>("Command1")->x();
        EXPECT_EQ(wide.width() - 1 - rightOf("Command2"), margin);
        EXPECT_EQ(wide.width() - 1 - rightOf("Slider1"), margin);
    }
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

// The slider window by itself: its place, its slider and the hands that move it.
#include "panels/form11.h"

#include "panels/asked.h"

#include <QWheelEvent>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

class SliderWindow : public testing::Test {
  protected:
    SliderWindow()
    {
        QObject::connect(&window, &Form11::Moved, [this](int value) { moves.push_back(value); });
        window.show();
        window.ShowStrength(5000);
        moves.clear();
    }

    /// A window that stands where the palette may stand.
    static const QWidget& Palette()
    {
        static QWidget palette;
        palette.move(300, 7);
        palette.resize(209, 410);
        return palette;
    }

    QSlider& Slider() { return *window.findChild<QSlider*>("Slider1"); }
    std::string Label() { return window.findChild<QLabel*>("Label1")->text().toStdString(); }
    void Type(const char* keys) { QTest::keyClicks(&Slider(), keys); }
    void Key(Qt::Key key) { QTest::keyClick(&Slider(), key); }

    /// Slider and label show the value, and it was told last.
    void ExpectMovedTo(int value)
    {
        EXPECT_EQ(Slider().value(), value);
        EXPECT_EQ(Label(), std::to_string(value));
        ASSERT_FALSE(moves.empty());
        EXPECT_EQ(moves.back(), value);
    }

    Form11 window{"Vetro", Palette()};
    std::vector<int> moves;
};

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

TEST_F(SliderWindow, StartsWithTheKeyboardOnTheSlider)
{
    EXPECT_TRUE(Slider().hasFocus() || window.focusWidget() == &Slider());
}

TEST_F(SliderWindow, MovesWithArrowsAndPageKeys)
{
    Key(Qt::Key_Right);
    ExpectMovedTo(5100);
    Key(Qt::Key_Left);
    Key(Qt::Key_Left);
    ExpectMovedTo(4900);
    Key(Qt::Key_Up);
    ExpectMovedTo(5000);
    Key(Qt::Key_Down);
    ExpectMovedTo(4900);
    Key(Qt::Key_PageUp);
    ExpectMovedTo(5900);
    Key(Qt::Key_PageDown);
    ExpectMovedTo(4900);
    Key(Qt::Key_End);
    ExpectMovedTo(10000);
    Key(Qt::Key_Home);
    ExpectMovedTo(0);
}

TEST_F(SliderWindow, MovesWithTheWheel)
{
    const auto turn = [this](int eighths) {
        const QPointF middle = QRectF(Slider().rect()).center();
        QWheelEvent event(middle, Slider().mapToGlobal(middle), {}, {0, eighths}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Slider(), &event);
    };
    turn(120);
    EXPECT_GT(Slider().value(), 5000);
    ExpectMovedTo(Slider().value());
    turn(-120);
    ExpectMovedTo(5000);
}

TEST_F(SliderWindow, MovesWithTheMouse)
{
    QTest::mouseClick(&Slider(), Qt::LeftButton, {}, {Slider().width() - 4, 8});
    ExpectMovedTo(6000);
}

TEST_F(SliderWindow, TakesTypedDigits)
{
    Type("2");
    ExpectMovedTo(2);
    Type("53");
    ExpectMovedTo(253);
    Type("4");
    ExpectMovedTo(2534);
    Type("5");
    ExpectMovedTo(10000);
}

TEST_F(SliderWindow, ShowsWhatIsTypedInAPlaceThatStays)
{
    const QSize before = window.size();
    const auto* const typed = window.findChild<QLabel*>("Typed");
    const QRect place = typed->geometry();
    int resized = 0;
    QObject::connect(&window, &Form11::Resized, [&] { ++resized; });
    Type("12");
    EXPECT_EQ(typed->text(), "12");
    Key(Qt::Key_Right);
    EXPECT_EQ(typed->text(), "");
    // No more than a person can mean by a number.
    Type("00000000000000009");
    EXPECT_EQ(typed->text(), "0000000000000000");
    EXPECT_EQ(Slider().value(), 0);
    EXPECT_EQ(typed->geometry(), place);
    EXPECT_EQ(window.size(), before);
    EXPECT_EQ(resized, 0);
}

TEST_F(SliderWindow, BeginsANewNumberAfterAnotherKey)
{
    Type("25");
    Key(Qt::Key_Shift);
    Type("3");
    ExpectMovedTo(253);
    Key(Qt::Key_Right);
    Type("7");
    ExpectMovedTo(7);
}

TEST_F(SliderWindow, TakesTheLastDigitAwayAtABackspace)
{
    Key(Qt::Key_Backspace);
    ExpectMovedTo(500);
    Type("7");
    ExpectMovedTo(5007);
    Key(Qt::Key_Backspace);
    Type("1");
    ExpectMovedTo(5001);
}

TEST_F(SliderWindow, IgnoresOtherLetters)
{
    Type("a-.,");
    EXPECT_EQ(Slider().value(), 5000);
    EXPECT_TRUE(moves.empty());
}

TEST_F(SliderWindow, ConfirmsAtReturnAndAtOK)
{
    int confirmed = 0;
    QObject::connect(&window, &Form11::Confirmed, [&] { ++confirmed; });
    Key(Qt::Key_Return);
    EXPECT_EQ(confirmed, 1);
    ClickButton(window, "Command1");
    EXPECT_EQ(confirmed, 2);
    EXPECT_TRUE(window.isVisible()) << "whoever keeps the strength closes the window";
}

TEST_F(SliderWindow, ClosesUnconfirmedAtEscapeAndAtAnnulla)
{
    int confirmed = 0;
    QObject::connect(&window, &Form11::Confirmed, [&] { ++confirmed; });
    Key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    window.show();
    ClickButton(window, "Command2");
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(confirmed, 0);
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

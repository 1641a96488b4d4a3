// The hands that move the slider and confirm it: keys, typed digits, the wheel and the mouse.
#include "panels/shown_slider.h"

namespace pixano::test {
namespace {

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
    Turn(120);
    EXPECT_GT(Slider().value(), 5000);
    ExpectMovedTo(Slider().value());
    Turn(-120);
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

TEST_F(SliderWindow, TakesAPointForTheThousandsOnlyBeforeThreeDigits)
{
    Type("1.234");
    ExpectMovedTo(1234);
    Type("5");
    ExpectMovedTo(1);
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
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock})
        Key(key);
    Type("3");
    ExpectMovedTo(253);
    // Held all the time, as on keyboards that have their digits above.
    QTest::keyPress(&Slider(), Qt::Key_Shift);
    QTest::keyClick(&Slider(), Qt::Key_4, Qt::ShiftModifier);
    QTest::keyRelease(&Slider(), Qt::Key_Shift);
    ExpectMovedTo(2534);
    Key(Qt::Key_Right);
    Type("7");
    ExpectMovedTo(7);
}

TEST_F(SliderWindow, BeginsANewNumberAfterTheMouseOrAnotherControl)
{
    const QPoint nearTheEnd(Slider().width() - 4, 8);
    const auto goElsewhere = [this] {
        QFocusEvent leaves(QEvent::FocusOut);
        QApplication::sendEvent(&Slider(), &leaves);
    };
    const std::vector<std::function<void()>> hands{
        goElsewhere,
        [this] { Turn(120); },
        [&] { QTest::mouseClick(&Slider(), Qt::LeftButton, {}, nearTheEnd); },
    };
    for (const auto& move : hands) {
        Type("25");
        move();
        EXPECT_EQ(window.findChild<QLabel*>("Typed")->text(), "");
        Type("3");
        ExpectMovedTo(3);
        Key(Qt::Key_Home);
    }
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

TEST_F(SliderWindow, PassesOverKeysThatMeanSomethingElse)
{
    for (const Qt::KeyboardModifier with : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        QTest::keyClick(&Slider(), Qt::Key_0, with);
    EXPECT_EQ(Slider().value(), 5000);
    EXPECT_TRUE(moves.empty());
}

TEST_F(SliderWindow, TakesAPressBesideTheHandleAtEveryHeight)
{
    for (int y = 1; y < Slider().height(); y += 3) {
        const int before = Slider().value();
        QTest::mouseClick(&Slider(), Qt::LeftButton, {}, {Slider().width() - 4, y});
        EXPECT_EQ(Slider().value(), std::min(10000, before + 1000)) << y;
        QTest::mouseClick(&Slider(), Qt::LeftButton, {}, {4, y});
    }
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

}  // namespace
}  // namespace pixano::test

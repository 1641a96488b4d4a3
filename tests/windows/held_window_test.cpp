// A held window that the window manager shifts without a word, by putting its frame around it
// later.
#include "windows/form9.h"

#include <QCoreApplication>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

constexpr QPoint Place(60, 40);
constexpr QPoint Shift(-1, -20);

class ShiftedWindow : public testing::Test {
  protected:
    ShiftedWindow()
    {
        window.SetInside({100, 80});
        window.PlaceAt(Place);
        window.show();
        QCoreApplication::processEvents();
    }

    /// The window is not told that it has been moved.
    void ShiftUnheard()
    {
        struct : QObject {
            bool eventFilter(QObject* /*of*/, QEvent* event) override
            {
                return event->type() == QEvent::Move;
            }
        } unheard;
        window.installEventFilter(&unheard);
        window.windowHandle()->setPosition(window.geometry().topLeft() + Shift);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.pos(), Place + Shift);
    }

    bool ComesTo(QPoint place)
    {
        return QTest::qWaitFor([&] { return window.pos() == place; }, 2000);
    }

    Form9 window;
};

TEST_F(ShiftedWindow, GoesBackOnceItWasPlaced)
{
    ShiftUnheard();
    EXPECT_TRUE(ComesTo(Place));
    EXPECT_FALSE(window.MovedByUser());
}

TEST_F(ShiftedWindow, GoesBackWhereItGetsAnotherSizeOrTheSameMeanwhile)
{
    for (const QSize size : {QSize(120, 90), QSize(120, 90)}) {
        window.PlaceAt(Place);
        ShiftUnheard();
        window.SetInside(size);
        EXPECT_TRUE(ComesTo(Place)) << size.width();
        EXPECT_FALSE(window.MovedByUser());
        EXPECT_EQ(window.size(), size);
    }
}

TEST_F(ShiftedWindow, StaysWhereTheUserMovesItLater)
{
    QTest::qWait(400);
    ShiftUnheard();
    EXPECT_TRUE(window.MovedByUser());
    QTest::qWait(400);
    EXPECT_EQ(window.pos(), Place + Shift);
}

}  // namespace
}  // namespace pixano::test

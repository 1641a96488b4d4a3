// Which windows bring small ones forward. What lies above what is for a real display to show.
#include "windows/never_covered.h"

#include <QTest>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

class OverASmallOne : public testing::Test, public QObject {
  protected:
    OverASmallOne()
    {
        small.setGeometry(100, 100, 100, 50);
        large.setGeometry(50, 50, 200, 200);
        for (QWidget* const window : {&small, &large})
            window->show();
        small.installEventFilter(this);
    }
    /// What has come forward once the large one has moved a little, over the small one as before.
    int TimesRaised()
    {
        raised_ = 0;
        large.move(large.x() + 1, large.y());
        return raised_;
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ZOrderChange) ++raised_;
        return QObject::eventFilter(watched, event);
    }

    QWidget small;
    QWidget large;
    NeverCovered neverCovered{{&small}, {&large}};

  private:
    int raised_ = 0;
};

TEST_F(OverASmallOne, ItComesForwardToBeSeen)
{
    EXPECT_EQ(TimesRaised(), 1);
}

TEST_F(OverASmallOne, NothingComesForwardWhileEitherIsMinimised)
{
    for (QWidget* const window : {&small, &large}) {
        window->setWindowState(Qt::WindowMinimized);
        ASSERT_TRUE(window->isMinimized());
        EXPECT_EQ(TimesRaised(), 0);
        window->setWindowState(Qt::WindowNoState);
    }
    EXPECT_EQ(TimesRaised(), 1);
}

TEST_F(OverASmallOne, NothingComesForwardWhileEitherIsHidden)
{
    for (QWidget* const window : {&small, &large}) {
        window->hide();
        EXPECT_EQ(TimesRaised(), 0);
        window->show();
    }
    EXPECT_EQ(TimesRaised(), 1);
}

/// Whether the small one lies elsewhere once it has come back to the upper edge of the screen.
bool GivesWay(QWidget& small)
{
    constexpr int Patience = 400;
    small.hide();
    small.move(100, 0);
    small.show();
    return QTest::qWaitFor([&] { return small.y() > 0; }, Patience);
}

TEST_F(OverASmallOne, ItGivesWayToTheTitleOfAMaximisedOne)
{
    large.showMaximized();
    EXPECT_TRUE(GivesWay(small));
}

TEST_F(OverASmallOne, ItGivesWayToNothingElse)
{
    EXPECT_FALSE(GivesWay(small));
    large.showMaximized();
    large.hide();
    EXPECT_FALSE(GivesWay(small));
}

}  // namespace
}  // namespace pixano::test

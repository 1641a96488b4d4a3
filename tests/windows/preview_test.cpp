// The preview's image, as it is and stretched.
#include "support/letters.h"
#include "support/paint_count.h"
#include "windows/form9.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

class Preview : public testing::Test {
  protected:
    /// The packed colours painted, row by row.
    std::vector<std::vector<Colour>> Painted()
    {
        const QImage image = image_.grab().toImage();
        std::vector<std::vector<Colour>> rows;
        for (int y = 0; y < image.height(); ++y) {
            auto& row = rows.emplace_back();
            for (int x = 0; x < image.width(); ++x) {
                const QRgb rgb = image.pixel(x, y);
                row.push_back(qRed(rgb) + 256 * qGreen(rgb) + 65536 * qBlue(rgb));
            }
        }
        return rows;
    }

    Form9 window_;
    ImageControl& image_ = window_.Image1();
    const Colour a_ = ColourOf('a');
    const Colour b_ = ColourOf('b');
};

TEST_F(Preview, ShowsAPictureAtItsOwnSize)
{
    image_.SetPicture(Drawn({"ab", "ba"}));
    EXPECT_EQ(image_.size(), QSize(2, 2));
    EXPECT_EQ(Painted(), (std::vector<std::vector<Colour>>{{a_, b_}, {b_, a_}}));
}

TEST_F(Preview, StretchesAPictureToItsSizeWithCrispPixels)
{
    image_.SetPicture(Drawn({"ab"}));
    image_.SetStretch(true);
    image_.resize(4, 2);
    EXPECT_EQ(Painted(), (std::vector<std::vector<Colour>>{{a_, a_, b_, b_}, {a_, a_, b_, b_}}));
}

TEST_F(Preview, MixesNeighboursWhereAPictureIsNotEnlargedByAWholeFactor)
{
    image_.SetPicture(Drawn({"ab"}));
    image_.SetStretch(true);
    image_.resize(3, 1);
    const Colour middle = Painted()[0][1];
    EXPECT_NE(middle, a_);
    EXPECT_NE(middle, b_);
    // One direction alone is enough.
    image_.SetPicture(Drawn({"a", "b"}));
    image_.resize(2, 3);
    EXPECT_NE(Painted()[1][0], a_);
    EXPECT_NE(Painted()[1][0], b_);
}

TEST_F(Preview, KeepsItsSizeForAnotherPictureWhileItStretches)
{
    image_.SetStretch(true);
    image_.resize(4, 2);
    image_.SetPicture(Drawn({"ab"}));
    EXPECT_EQ(image_.size(), QSize(4, 2));
}

TEST_F(Preview, HasBarsWhileTheUserHasMadeItSmaller)
{
    image_.SetPicture(Surface(200, 200));
    window_.SetInside(QSize(200, 200));
    window_.show();
    const auto bars = [this] {
        QTest::qWait(0);
        return std::pair(window_.horizontalScrollBar()->isVisible(),
                         window_.verticalScrollBar()->isVisible());
    };
    EXPECT_EQ(bars(), std::pair(false, false));
    window_.resize(100, 100);
    EXPECT_EQ(bars(), std::pair(true, true));
    window_.resize(200, 200);
    EXPECT_EQ(bars(), std::pair(false, false));
}

TEST_F(Preview, KeepsTheMiddleOfAPictureThatHadRoomToSpare)
{
    image_.SetPicture(Surface(60, 40));
    window_.SetInside(QSize(60, 40));
    window_.show();
    window_.resize(300, 200);
    window_.Stretch(QSize(6000, 4000));
    for (const QScrollBar* const bar :
         {window_.horizontalScrollBar(), window_.verticalScrollBar()}) {
        EXPECT_GT(bar->maximum(), 1000);
        EXPECT_NEAR(bar->value(), bar->maximum() / 2, 1);
    }
}

TEST_F(Preview, IsHeldByAHandWhileTheMouseIsPressed)
{
    window_.show();
    const auto pointer = [this] { return window_.viewport()->cursor().shape(); };
    QTest::mousePress(window_.viewport(), Qt::LeftButton);
    EXPECT_EQ(pointer(), Qt::ClosedHandCursor);
    QTest::mouseRelease(window_.viewport(), Qt::LeftButton);
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
    QTest::mousePress(window_.viewport(), Qt::RightButton);
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
    QTest::mouseRelease(window_.viewport(), Qt::RightButton);
}

TEST_F(Preview, FollowsTheHandStepByStep)
{
    image_.SetPicture(Surface(400, 400));
    window_.SetInside(QSize(400, 400));
    window_.resize(100, 100);
    window_.show();
    const auto send = [&](QEvent::Type type, QPoint place) {
        QMouseEvent event(type, place, window_.viewport()->mapToGlobal(place), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window_.viewport(), &event);
    };
    send(QEvent::MouseButtonPress, {50, 50});
    for (const int step : {1, 2, 3}) {
        send(QEvent::MouseMove, {50 - 10 * step, 50 - 5 * step});
        EXPECT_EQ(window_.horizontalScrollBar()->value(), 10 * step);
        EXPECT_EQ(window_.verticalScrollBar()->value(), 5 * step);
    }
}

TEST_F(Preview, TellsEveryNotchOfTheWheelWithTheControlKey)
{
    std::vector<bool> zoomed;
    QObject::connect(&window_, &Form9::Zoomed, [&](bool larger) { zoomed.push_back(larger); });
    const auto turn = [this](int eighths, Qt::KeyboardModifiers keys) {
        QWheelEvent event({1, 1}, {1, 1}, {}, {0, eighths}, Qt::NoButton, keys, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(window_.viewport(), &event);
    };
    turn(120, Qt::NoModifier);
    turn(60, Qt::ControlModifier);
    EXPECT_TRUE(zoomed.empty());
    turn(60, Qt::ControlModifier);
    turn(-120, Qt::ControlModifier);
    turn(120, Qt::ControlModifier);
    EXPECT_EQ(zoomed, (std::vector<bool>{true, false, true}));
}

TEST_F(Preview, GoesSidewaysWithTheShiftKey)
{
    image_.SetPicture(Surface(400, 400));
    window_.SetInside(QSize(400, 400));
    window_.resize(100, 100);
    window_.show();
    // A finger on a touchpad never moves quite straight.
    for (const QPoint turned : {QPoint(0, -120), QPoint(10, -120)}) {
        window_.horizontalScrollBar()->setValue(0);
        QWheelEvent event({1, 1}, {1, 1}, {}, turned, Qt::NoButton, Qt::ShiftModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(window_.viewport(), &event);
        EXPECT_GT(window_.horizontalScrollBar()->value(), 0) << turned.x();
        EXPECT_LT(window_.horizontalScrollBar()->value(), 100) << "not by a whole page";
        EXPECT_EQ(window_.verticalScrollBar()->value(), 0);
    }
}

TEST_F(Preview, PaintsAnotherPictureOfTheSameSize)
{
    image_.SetPicture(Drawn({"a"}));
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    const PaintCount paints(image_);
    image_.SetPicture(Drawn({"b"}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
}

TEST_F(Preview, HoldsItsOwnCopy)
{
    Surface picture = Drawn({"ab"});
    image_.SetPicture(picture);
    picture.PSet(0, 0, 0);
    EXPECT_EQ(image_.Picture().Point(0, 0), a_);
    // Another of that size takes no more memory, not even while it is copied.
    const std::uint32_t* const place = image_.Picture().Pixels();
    image_.SetPicture(picture);
    EXPECT_EQ(image_.Picture().Pixels(), place);
    EXPECT_EQ(image_.Picture().Point(0, 0), 0);
}

}  // namespace
}  // namespace pixano::test

// The canvas window and its picture box, as they are painted.
#include "support/letters.h"
#include "support/paint_count.h"
#include "windows/form2.h"

#include <QTest>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

/// Shows a surface that a test may change afterwards.
class Canvas : public testing::Test {
  protected:
    Canvas() { window.Picture1().FitPicture(); }

    /// The packed colour painted for the pixel (x, y) of the picture.
    Colour Painted(int x, int y)
    {
        const QRgb rgb = window.Picture1().grab().toImage().pixel(x + 2, y + 2);
        return qRed(rgb) + 256 * qGreen(rgb) + 65536 * qBlue(rgb);
    }

    Surface surface = Drawn({"abc", "def"});
    Form2 window{surface};
};

TEST_F(Canvas, PaintsEveryPixelInItsColourInsideTheBorder)
{
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(Painted(x, y), surface.Point(x, y)) << x << "," << y;
    EXPECT_EQ(window.Picture1().size(), QSize(7, 6));
}

// A part of a few pixels is what scrolling uncovers.
TEST_F(Canvas, PaintsEachPartAsTheWhole)
{
    PictureBox& box = window.Picture1();
    const QImage whole = box.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const auto expectPart = [&](const QRect& part) {
        QImage painted(box.size(), QImage::Format_RGB32);
        painted.fill(Qt::magenta);
        box.render(&painted, part.topLeft(), part);
        EXPECT_EQ(painted.copy(part), whole.copy(part)) << part.x() << "," << part.y();
    };
    for (int x = 0; x < box.width(); ++x)
        expectPart(QRect(x, 0, 1, box.height()));
    for (int y = 0; y < box.height(); ++y)
        expectPart(QRect(0, y, box.width(), 1));
}

TEST_F(Canvas, LiesInASunkenBorder)
{
    EXPECT_EQ(window.Picture1().frameShape(), QFrame::WinPanel);
    EXPECT_EQ(window.Picture1().frameShadow(), QFrame::Sunken);
    EXPECT_EQ(window.Picture1().contentsRect(), QRect(2, 2, 3, 2));
}

// Where the window manager draws the frame for the new title, what is inside may be lost.
TEST_F(Canvas, IsPaintedOnceMoreAfterItsTitleHasChanged)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const PaintCount paints(window.Picture1());
    window.setWindowTitle("foto.bmp   3x2");
    EXPECT_FALSE(QTest::qWaitFor([&] { return paints.count > 0; }, 100)) << "too early";
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count == 1; }));
}

TEST_F(Canvas, KeepsRedGreenAndBlueApart)
{
    surface.PSet(0, 0, 0xFF);
    surface.PSet(1, 0, 0xFF00);
    surface.PSet(2, 0, 0xFF0000);
    EXPECT_EQ(Painted(0, 0), 0xFF);
    EXPECT_EQ(Painted(1, 0), 0xFF00);
    EXPECT_EQ(Painted(2, 0), 0xFF0000);
}

TEST_F(Canvas, FollowsTheSurfaceToAnotherSize)
{
    surface = Drawn({"a", "b", "c", "d"});
    window.Picture1().FitPicture();
    EXPECT_EQ(window.Picture1().size(), QSize(5, 8));
    EXPECT_EQ(Painted(0, 3), ColourOf('d'));
}

TEST_F(Canvas, PaintsAnEmptySurface)
{
    surface = Surface();
    window.Picture1().FitPicture();
    EXPECT_EQ(window.Picture1().size(), QSize(4, 4));
    EXPECT_FALSE(window.Picture1().grab().isNull());
}

TEST_F(Canvas, TellsAClickOnThePicture)
{
    int clicks = 0;
    QObject::connect(&window.Picture1(), &PictureBox::Clicked, [&] { ++clicks; });
    QTest::mouseClick(&window.Picture1(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Canvas, ComesToTheFrontAtAClickOnThePicture)
{
    window.hide();
    QTest::mouseClick(&window.Picture1(), Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
}

}  // namespace
}  // namespace pixano::test

// The pictures on the palette's buttons: in the colour of its captions, sharp on a fine screen.
#include "panels/built_in.h"

#include <QPixmap>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

constexpr const char* Pictures[] = {"ingrandisci.jpg", "riflesso_inferiore.gif"};

TEST(ButtonPicture, IsDrawnForTheDotsOfAFineScreen)
{
    for (const char* const file : Pictures) {
        const QSize side = BuiltIn(file, 1).size();
        const QIcon icon = ButtonPicture(file, Qt::black);
        for (const int dotsPerPixel : {1, 2}) {
            const QPixmap shown = icon.pixmap(side, dotsPerPixel);
            EXPECT_EQ(shown.size(), side * dotsPerPixel) << file;
            EXPECT_EQ(shown.deviceIndependentSize().toSize(), side) << file;
        }
        // The finer one is no larger picture.
        EXPECT_EQ(icon.pixmap(4 * side, 1).deviceIndependentSize().toSize(), side) << file;
    }
}

TEST(ButtonPicture, IsInkWhereItIsDrawnInBlack)
{
    const QColor ink(200, 100, 50);
    const QImage drawn = BuiltIn("ingrandisci.jpg", 1);
    const QImage shown = ButtonPicture("ingrandisci.jpg", ink).pixmap(drawn.size(), 1).toImage();
    ASSERT_EQ(shown.size(), drawn.size());
    for (int y = 0; y < drawn.height(); ++y)
        for (int x = 0; x < drawn.width(); ++x) {
            const int lightness = qGray(drawn.pixel(x, y));
            EXPECT_NEAR(shown.pixelColor(x, y).alpha(), 255 - lightness, 2) << x << "," << y;
            EXPECT_TRUE(lightness > 0 || shown.pixelColor(x, y) == ink) << x << "," << y;
        }
}

}  // namespace
}  // namespace pixano::test

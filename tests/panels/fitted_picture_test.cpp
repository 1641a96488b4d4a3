// The built-in pictures as the screen wants them: fine, or small enough for it.
#include "panels/built_in.h"
#include "panels/fitted_picture.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>

#include <gtest/gtest.h>

#include <memory>

namespace pixano::test {
namespace {

TEST(FittedPicture, IsDrawnForTheDotsOfAFineScreen)
{
    // Twice the size has the detail of twice the size: it is not the small one made larger.
    for (const char* const file : {"emblema.jpg", "apertura.jpg"}) {
        const QImage small = BuiltIn(file, 1);
        for (const qreal dotsPerPixel : {1.25, 1.5, 2.0}) {
            const QImage fine = BuiltIn(file, dotsPerPixel);
            EXPECT_EQ(fine.size(), 2 * small.size()) << file;
            EXPECT_EQ(fine.devicePixelRatio(), 2) << file;
            EXPECT_NE(fine,
                      small.scaled(fine.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation))
                << file;
        }
    }
}

TEST(FittedPicture, ShrinksInProportionWhereTheScreenIsTooSmall)
{
    const QScreen& screen = *QApplication::primaryScreen();
    constexpr int Left = 300;  // for picture and borders together
    const QSize beside(screen.availableGeometry().width() - Left, 0);
    const std::unique_ptr<QLabel> label(FittedPicture("apertura.jpg", beside));
    const QSize shown = label->pixmap().deviceIndependentSize().toSize();
    EXPECT_LE(shown.width(), Left - 40) << "no room for the window's frame";
    EXPECT_GT(shown.width(), Left / 2);
    EXPECT_NEAR(shown.height(), shown.width() * 420.0 / 640, 1);
    const QImage seen = label->pixmap().toImage();
    const QImage jagged = BuiltIn("apertura.jpg", seen.devicePixelRatio())
                              .scaled(seen.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation)
                              .convertToFormat(seen.format());
    EXPECT_NE(seen, jagged) << "its lines are broken";
}

}  // namespace
}  // namespace pixano::test

// How high the palette is on screens of every height.
#include "panels/form10.h"
#include "shell/controls.h"

#include <QPushButton>

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

TEST(PaletteHeight, FitsLowScreens)
{
    Form10 palette{PaletteButtons()};
    palette.show();
    palette.ArrangeFor(768);
    const int roomy = palette.height();
    EXPECT_LT(roomy, 768 / 1.25);
    palette.ArrangeFor(768 / 2);
    EXPECT_LT(palette.height(), 768 / 2);
    for (const QPushButton* const button : palette.findChildren<QPushButton*>())
        EXPECT_LT(button->iconSize().height(), button->height() - 2) << "picture and border";
    palette.ArrangeFor(1080);
    EXPECT_EQ(palette.height(), roomy);
}

TEST(PaletteHeight, LeavesRoomForTheTitleOnScreensJustAsHigh)
{
    constexpr int TitleOfADesktop = 30;
    Form10 palette{PaletteButtons()};
    palette.show();
    palette.ArrangeFor(1080);
    const int roomy = palette.height();
    for (int height = roomy - 2; height <= roomy + TitleOfADesktop + 2; ++height) {
        palette.ArrangeFor(height);
        EXPECT_LE(palette.height() + TitleOfADesktop, height);
        EXPECT_EQ(palette.height() == roomy, height >= roomy + TitleOfADesktop) << height;
    }
}

}  // namespace
}  // namespace pixano::test

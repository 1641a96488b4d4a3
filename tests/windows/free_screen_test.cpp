// Where a window has to stand to be seen as a whole.
#include "windows/free_screen.h"

#include <gtest/gtest.h>

namespace pixano::test {
namespace {

TEST(FreeScreen, HoldsAWindowAsNearToItsPlaceAsThereIsRoom)
{
    const QRect room(100, 50, 400, 300);
    const QSize most = room.size();
    QWidget window;
    const QMargins frame = FrameOf(window);
    const struct {
        QSize whole;
        QPoint wanted;
        QPoint place;
    } rows[] = {
        {{200, 100}, {150, 90}, {150, 90}},
        {{200, 100}, {99, 49}, {100, 50}},
        {{200, 100}, {300, 250}, {300, 250}},
        {{200, 100}, {301, 251}, {300, 250}},
        {most, {0, 900}, {100, 50}},
        // One that is too large shows its title.
        {most + QSize(1, 1), {150, 90}, {100, 50}},
        {most + QSize(500, 500), {0, 0}, {100, 50}},
    };
    for (const auto& [whole, wanted, place] : rows) {
        window.resize(whole.shrunkBy(frame));
        EXPECT_EQ(PlaceWithin(room, window, wanted), place)
            << whole.width() << "x" << whole.height() << " at " << wanted.x() << "," << wanted.y();
    }
}

}  // namespace
}  // namespace pixano::test

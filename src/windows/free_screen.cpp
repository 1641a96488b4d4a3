#include "windows/free_screen.h"

#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace pixano {
namespace {

/// Where a length that begins at `place` has to begin to end by `end`, but not before `begin`.
int Within(int place, int length, int begin, int end)
{
    return std::max(std::min(place, end - length), begin);
}

}  // namespace

QMargins FrameOf(const QWidget& window)
{
    constexpr QMargins UsualFrame(4, 30, 4, 4);
    const QMargins known =
        window.windowHandle() != nullptr ? window.windowHandle()->frameMargins() : QMargins();
    return known.isNull() ? UsualFrame : known;
}

QSize LargestInside(const QWidget& window)
{
    const QSize available = window.screen()->availableGeometry().size();
    return available.shrunkBy(FrameOf(window)).expandedTo(QSize(1, 1));
}

void KeepWithin(const QRect& room, QWidget& window)
{
    const QSize whole = window.size().grownBy(FrameOf(window));
    const QPoint place(Within(window.x(), whole.width(), room.x(), room.x() + room.width()),
                       Within(window.y(), whole.height(), room.y(), room.y() + room.height()));
    if (place != window.pos()) window.move(place);
}

void KeepOnScreen(QWidget& window)
{
    KeepWithin(window.screen()->availableGeometry(), window);
}

}  // namespace pixano

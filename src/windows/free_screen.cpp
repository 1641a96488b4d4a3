#include "windows/free_screen.h"

#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace pixano {
namespace {

/// A frame that is not there yet is taken to be as wide as common ones are.
QMargins FrameOf(const QWidget& window)
{
    constexpr QMargins UsualFrame(4, 30, 4, 4);
    const QMargins known =
        window.windowHandle() != nullptr ? window.windowHandle()->frameMargins() : QMargins();
    return known.isNull() ? UsualFrame : known;
}

/// Where a length that begins at `place` has to begin to end by `end`, but not before `begin`.
int Within(int place, int length, int begin, int end)
{
    return std::max(std::min(place, end - length), begin);
}

}  // namespace

QSize LargestInside(const QWidget& window)
{
    const QSize available = window.screen()->availableGeometry().size();
    return available.shrunkBy(FrameOf(window)).expandedTo(QSize(1, 1));
}

void KeepOnScreen(QWidget& window)
{
    const QRect free = window.screen()->availableGeometry();
    const QSize whole = window.size().grownBy(FrameOf(window));
    const QPoint place(Within(window.x(), whole.width(), free.x(), free.x() + free.width()),
                       Within(window.y(), whole.height(), free.y(), free.y() + free.height()));
    if (place != window.pos()) window.move(place);
}

}  // namespace pixano

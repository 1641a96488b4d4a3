#include "windows/free_screen.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace pixano {
namespace {

/// Nothing as long as it is not there.
QMargins KnownFrame(const QWidget& window)
{
    return window.windowHandle() != nullptr ? window.windowHandle()->frameMargins() : QMargins();
}

/// Where a length that begins at `place` has to begin to end by `end`, but not before `begin`.
int Within(int place, int length, int begin, int end)
{
    return std::max(std::min(place, end - length), begin);
}

}  // namespace

QMargins FrameOf(const QWidget& window)
{
    if (const QMargins known = KnownFrame(window); !known.isNull()) return known;
    // The desktop frames all windows much alike, those of a fixed size more thinly.
    QMargins frame = UsualFrame;
    for (const QWidget* const other : QApplication::topLevelWidgets())
        if (other->isVisible()) frame = frame | KnownFrame(*other);
    return frame;
}

QRect FramedGeometry(const QWidget& window)
{
    return window.geometry().marginsAdded(KnownFrame(window));
}

QMargins RoomForFrame(const QWidget& window)
{
    return FrameOf(window) | UsualFrame;
}

QSize LargestInside(const QWidget& window)
{
    const QSize available = window.screen()->availableGeometry().size();
    return available.shrunkBy(FrameOf(window)).expandedTo(QSize(1, 1));
}

QPoint PlaceWithin(const QRect& room, const QWidget& window, QPoint place)
{
    const QSize whole = window.size().grownBy(FrameOf(window));
    return {Within(place.x(), whole.width(), room.x(), room.x() + room.width()),
            Within(place.y(), whole.height(), room.y(), room.y() + room.height())};
}

void KeepOnScreen(QWidget& window)
{
    const QPoint place = PlaceWithin(window.screen()->availableGeometry(), window, window.pos());
    if (place != window.pos()) window.move(place);
}

}  // namespace pixano

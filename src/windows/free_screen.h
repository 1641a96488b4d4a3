// What the screen leaves to a window, frame and panels of the desktop taken off.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>
#include <QWidget>

namespace pixano {

/// As wide as common frames are.
inline constexpr QMargins UsualFrame(5, 30, 5, 5);

/// The window's frame; one that is not there yet is taken to be as wide as the program's others
/// are, or as common ones.
QMargins FrameOf(const QWidget& window);

/// Where the window lies with its frame, as far as that is there. The toolkit's own answer does not
/// hear of a frame that a window manager puts around a window which comes back.
QRect FramedGeometry(const QWidget& window);

/// What to leave for the window's frame: the same before it is there and after, and in no case less
/// than common ones take.
QMargins RoomForFrame(const QWidget& window);

/// The largest inside that the window can have on its screen.
QSize LargestInside(const QWidget& window);

/// The place nearest to `place` at which the window, with its frame, is within `room`; one that is
/// too large begins at the upper left corner.
QPoint PlaceWithin(const QRect& room, const QWidget& window, QPoint place);

/// Moves the window as far as it takes for it to be within what its screen leaves.
void KeepOnScreen(QWidget& window);

}  // namespace pixano

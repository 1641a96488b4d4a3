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

/// The largest inside that the window can have on its screen.
QSize LargestInside(const QWidget& window);

/// Moves the window as far as it takes for its frame to be within `room`; one that is too large
/// begins at the upper left corner.
void KeepWithin(const QRect& room, QWidget& window);

/// The same within what its screen leaves.
void KeepOnScreen(QWidget& window);

}  // namespace pixano

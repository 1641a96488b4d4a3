// What the screen leaves to a window, frame and panels of the desktop taken off.
#pragma once

#include <QRect>
#include <QSize>
#include <QWidget>

namespace pixano {

/// The largest inside that the window can have on its screen.
QSize LargestInside(const QWidget& window);

/// Moves the window as far as it takes for its frame to be on the screen; one that is too large
/// begins at the upper left corner.
void KeepOnScreen(QWidget& window);

}  // namespace pixano

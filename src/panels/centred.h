// Placing a window in the middle of the screen.
#pragma once

#include <QScreen>
#include <QWidget>

namespace pixano {

/// Moves the window, at the size that its contents ask for, to the middle of the screen.
inline void Centre(QWidget& window)
{
    window.adjustSize();
    const QSize screen = window.screen()->size();
    window.move(qRound((screen.width() - window.width()) / 2.0),
                qRound((screen.height() - window.height()) / 2.0));
}

}  // namespace pixano
